// HeatingData\Srq.idp: numbered entries with one type each, and the radiators by their names below it. An
// older form, which is read as well, numbers the radiators too. There is no step that converts: what was read
// in the old form is saved in the new one.
#include <memory>
#include <unordered_set>

#include "host/afx/MessageLog.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/base/Folders.h"
#include "plugin/base/NumberText.h"
#include "plugin/base/VersionMark.h"
#include "plugin/radiators/CZPRadiatorManager.h"
#include "plugin/radiators/RadiatorFields.h"

namespace {

constexpr const wchar_t* kVersion = L"Version:2.0";
constexpr const wchar_t* kOldVersion = L"Version:1.0";

CString FilePath() {
  return ZP::GetSystemPath() + L"HeatingData\\Srq.idp";
}

struct FileForm {
  CString path;
  bool numbersRadiators; // the old form
};

void Log(const FileForm& form, const CString& position, const wchar_t* reason) {
  afx::LogError(L"参数文件 " + form.path + L"：" + position + L"：" + reason);
}

// The name that a numbered entry holds as its only key. One without a key raises the array's error.
CString NameIn(const FileForm& form, CIDPEx& numbered, const CString& position) {
  if (numbered.SubKeyNames.IsEmpty()) Log(form, position, L"缺少名称，读取中止");
  return numbered.SubKeyNames[0];
}

// The later of two like-named objects is dropped. The next save would lose it for good, so that save keeps a
// copy of the file.
bool IsNewName(const FileForm& form, std::unordered_set<CString>& names, const CString& name,
               const CString& position) {
  if (names.insert(name).second) return true;
  Log(form, position, L"重名，未读入；下次保存前先另存一份");
  CIDPEx::MarkForeign(form.path);
  return false;
}

// Null when the fields are missing. A key that they lack leaves its field at the default.
std::unique_ptr<CZPRadiator> ReadRadiator(const CString& name, CIDPEx* fields) {
  if (!fields) return nullptr;
  auto radiator = std::make_unique<CZPRadiator>();
  radiator->SetName(name);
  for (const RadiatorField& field : kRadiatorFields)
    std::visit([&](auto member) { fields->GetSubValue(field.key, (*radiator).*member); }, field.member);
  return radiator;
}

// Null when a node is missing.
std::unique_ptr<CZPRadiatorType> ReadType(const FileForm& form, CIDPEx& numbered, const CString& position) {
  auto type = std::make_unique<CZPRadiatorType>();
  type->SetName(NameIn(form, numbered, position));
  CIDPEx* node = numbered.GetSubItem(type->GetName());
  if (!node) return nullptr;
  std::unordered_set<CString> names; // of this type's radiators; asking the type for each would cost a walk
  for (const CString key : node->SubKeyNames) {
    const CString where = position + L"\\" + type->GetName() + L"\\" + key;
    CIDPEx* item = node->GetSubItem(key);
    if (!item) return nullptr;
    const CString name = form.numbersRadiators ? NameIn(form, *item, where) : key;
    auto radiator = ReadRadiator(name, form.numbersRadiators ? item->GetSubItem(name) : item);
    if (!radiator) return nullptr;
    if (!IsNewName(form, names, name, where)) continue;
    radiator->SetParent(type.get());
    type->m_arrRadiators.Add(radiator.release());
  }
  return type;
}

CIDPEx& Entry(CIDPEx& node, const CString& key, auto value) {
  node.SetSubValue(key, value);
  return *node.GetSubItem(key);
}

void WriteRadiator(CIDPEx& typeNode, const CZPRadiator& radiator) {
  CIDPEx& fields = Entry(typeNode, radiator.GetName(), L"");
  for (const RadiatorField& field : kRadiatorFields)
    std::visit([&](auto member) { fields.SetSubValue(field.key, radiator.*member); }, field.member);
}

} // namespace

bool CZPRadiatorManager::ReadData() {
  const CString path = FilePath();
  CIDPEx root;
  if (!root.Open(path)) return false;
  CString mark;
  root.GetValue(mark);
  // A file of another program is deliberately no failure: it reads as an empty one.
  if (!ZP::CheckVersionMark(path, mark, {kVersion, kOldVersion})) return true;
  RemoveAll();
  const FileForm form{path, mark == kOldVersion};
  std::unordered_set<CString> names;
  for (const CString index : root.SubKeyNames) {
    CIDPEx* numbered = root.GetSubItem(index);
    auto type = numbered ? ReadType(form, *numbered, index) : nullptr;
    if (!type) return false; // the types before it stay
    if (IsNewName(form, names, type->GetName(), index)) m_arrTypes.Add(type.release());
  }
  return true;
}

bool CZPRadiatorManager::SaveData() {
  CIDPEx root;
  root.SetValue(kVersion);
  for (int i = 0; i < m_arrTypes.GetSize(); ++i) {
    const CZPRadiatorType* type = m_arrTypes[i];
    if (!type) continue; // an entry without a name could not be read back
    CIDPEx& node = Entry(Entry(root, ZP::itoa(i), L""), type->GetName(), i);
    for (const CZPRadiator* radiator : type->m_arrRadiators)
      if (radiator) WriteRadiator(node, *radiator);
  }
  return root.Save(FilePath()) != 0;
}
