#include "plugin/layers/SchemeFiles.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

#include "host/afx/AtomicFile.h"
#include "host/afx/CFile.h"
#include "host/afx/CFileException.h"
#include "host/afx/CInvalidArgException.h"
#include "host/afx/Paths.h"
#include "plugin/base/FileFaults.h"
#include "plugin/base/Folders.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/LayerFields.h"

namespace {

constexpr const wchar_t* kFolder = L"LayerManager/";
constexpr const wchar_t* kExtension = L".idp";

// A name with a separator in it would be a file of another folder, and one that is no text would come back
// from there as another name.
bool IsSchemeName(const CString& name) {
  return !name.IsEmpty() && CString::FromUtf8(name.ToUtf8()) == name &&
         name.View().find_first_of(std::wstring_view(L"/\\\0", 3)) == std::wstring::npos;
}

} // namespace

CString layers::SchemePath(const CString& name) {
  return ZP::GetDataPath() + kFolder + name + kExtension;
}

std::vector<CString> layers::SchemeNames() {
  std::vector<CString> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(afx::NativePath(ZP::GetDataPath() + kFolder), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    const CString file = CString::FromUtf8(entry->path().filename().string());
    std::error_code ignored;
    if (!file.View().ends_with(kExtension) || !entry->is_regular_file(ignored)) continue;
    const CString name = file.Left(file.GetLength() - CString(kExtension).GetLength());
    if (!name.IsEmpty() && name != kDefaultScheme) names.push_back(name);
  }
  std::sort(names.begin(), names.end(),
            [](const CString& one, const CString& other) { return one.Compare(other) < 0; });
  names.insert(names.begin(), kDefaultScheme);
  return names;
}

bool layers::CopyScheme(const CString& from, const CString& to) {
  std::string content;
  return IsSchemeName(to) && afx::ReadWholeFile(SchemePath(from), content).ok &&
         afx::WriteFileAtomically(SchemePath(to), content).ok;
}

bool layers::DeleteScheme(const CString& name) {
  std::error_code error;
  return IsSchemeName(name) && std::filesystem::remove(afx::NativePath(SchemePath(name)), error);
}

void layers::RenameScheme(const CString& oldName, const CString& newName) {
  if (!IsSchemeName(newName)) throw CFileException(L"“" + newName + L"”不能作为文件名");
  CFile::Rename(SchemePath(oldName), SchemePath(newName));
}

bool layers::ReadScheme(CZPManagerLayer& manager, const CString& name) {
  try {
    return manager.ReadData(name);
  } catch (const CInvalidArgException&) {
    idp::LogUnread(SchemePath(name), kSchemeSection, L"分类或分组不完整，其后的内容未读入");
    return false;
  }
}
