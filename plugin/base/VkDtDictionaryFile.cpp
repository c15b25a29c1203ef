// Reading and saving dictionary files. Nothing here tells the user: a failure is a result and a line of the
// log.
#include <filesystem>

#include "host/afx/AtomicFile.h"
#include "host/afx/MessageLog.h"
#include "host/afx/Paths.h"
#include "plugin/base/VkDtDictionary.h"
#include "plugin/base/xml/ItemAccess.h"
#include "plugin/base/xml/Limits.h"
#include "plugin/base/xml/Reader.h"
#include "plugin/base/xml/Writer.h"

namespace fs = std::filesystem;

namespace {

bool Refuse(const CString& path, const CString& reason) {
  afx::LogError(L"字典文件 " + path + L"：" + reason);
  return false;
}

// Whether replacing the file loses nothing but what a dictionary has read from it. Else a copy is made, and
// false means that none could be: the file must stay.
bool KeepWhatWouldBeLost(const CString& path) {
  std::error_code error;
  if (fs::status(afx::NativePath(path), error).type() == fs::file_type::not_found) return true;
  std::string text;
  if (afx::ReadWholeFile(path, text, xml::kTextLimit).ok) {
    VkDtDictionary old(nullptr, nullptr);
    idp::Fault fault;
    bool dropped = false;
    if (xml::ReadDictionary(old, text, fault, dropped) && !dropped) return true;
  }
  return !afx::RescueFile(path).IsEmpty();
}

} // namespace

bool VkDtDictionary::ReadFromXML(const wchar_t* path) {
  const CString file(path); // may be a text of this dictionary
  xml::ItemAccess::Clear(*this);
  std::string text;
  const afx::FileResult read = afx::ReadWholeFile(file, text, xml::kTextLimit);
  if (!read.ok) return Refuse(file, read.message);
  idp::Fault fault;
  bool dropped = false;
  return xml::ReadDictionary(*this, text, fault, dropped) ||
         Refuse(file, idp::Describe(fault) + L"。未读入，下次保存前先另存一份");
}

bool VkDtDictionary::SaveToXML(const wchar_t* path) {
  const CString file(path);
  std::string text;
  CString reason;
  if (!xml::WriteDictionary(*this, text, reason)) return Refuse(file, reason + L"，未保存");
  const fs::path native = afx::NativePath(file);
  std::error_code error;
  if (native.has_parent_path()) fs::create_directories(native.parent_path(), error); // a failure shows below
  if (!KeepWhatWouldBeLost(file)) return Refuse(file, L"原文件无法另存，未保存");
  const afx::FileResult written = afx::WriteFileAtomically(file, text);
  return written.ok || Refuse(file, written.message);
}
