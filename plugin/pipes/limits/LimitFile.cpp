// PipeLimit.idp. The file has one owner and is rewritten whole.
#include <memory>
#include <unordered_set>

#include "plugin/base/CIDPEx.h"
#include "plugin/base/FileFaults.h"
#include "plugin/base/Folders.h"
#include "plugin/base/NumberText.h"
#include "plugin/base/VersionMark.h"
#include "plugin/pipes/limits/CZPFlowVelocityMng.h"
#include "plugin/pipes/limits/LimitFields.h"

namespace {

constexpr const wchar_t* kVersion = L"1.0";

CString FilePath() {
  return ZP::GetSystemPath() + L"Data\\PipeLimit.idp";
}

std::unique_ptr<CZPPipeLimit> ReadLimit(const CString& name, CIDPEx& node) {
  auto limit = std::make_unique<CZPPipeLimit>();
  limit->m_strName = name;
  for (const PipeLimitField& field : kPipeLimitFields)
    node.GetSubValue(field.key, (*limit).*field.range.*field.bound);
  return limit;
}

} // namespace

int CZPFlowVelocityMng::ReadData() {
  const CString path = FilePath();
  CIDPEx root;
  if (!root.Open(path)) return 0;
  CString version;
  root.GetSubValue(L"Version", version);
  if (!ZP::CheckVersionMark(path, version, {kVersion})) return 1;

  m_arrLimits.SetSize(0); // pointers that were handed out stay valid
  CIDPEx* section = root.GetSubItem(kLimitSection);
  if (!section) {
    idp::LogFault(path, kLimitSection, L"缺少此段");
    return 1;
  }
  std::unordered_set<CString> names; // asking the table for each would cost a walk
  bool gap = false;
  for (int i = 0; i < section->SubKeyNames.GetSize(); ++i) {
    const CString index = ZP::itoa(i);
    const CString position = CString(kLimitSection) + L"\\" + index;
    CIDPEx* record = section->GetSubItem(index);
    if (!record) {
      gap = true;
      continue;
    }
    if (record->SubKeyNames.IsEmpty()) idp::LogUnread(path, position, L"缺少管径，此行与其后各行");
    const CString name = record->SubKeyNames[0]; // raises the array's error where there is none
    if (names.insert(name).second)
      m_arrLimits.Add(ReadLimit(name, *record->GetSubItem(name)).release());
    else
      idp::LogUnread(path, position, L"管径重复");
  }
  if (gap) idp::LogUnread(path, kLimitSection, L"编号不连续，有的项");
  return 1;
}

int CZPFlowVelocityMng::SaveData() {
  if (m_arrLimits.IsEmpty()) return 0;
  CIDPEx root;
  root.SetSubValue(L"Version", kVersion);
  root.SetSubValue(kLimitSection, L"");
  CIDPEx* section = root.GetSubItem(kLimitSection);
  int count = 0; // a null element has no row, and an index without a row could not be read back
  for (const CZPPipeLimit* limit : m_arrLimits) {
    if (!limit) continue;
    const CString index = ZP::itoa(count++);
    section->SetSubValue(index, 0);
    CIDPEx* record = section->GetSubItem(index);
    record->SetSubValue(limit->m_strName, 0);
    CIDPEx* node = record->GetSubItem(limit->m_strName);
    for (const PipeLimitField& field : kPipeLimitFields)
      node->SetSubValue(field.key, limit->*field.range.*field.bound);
  }
  return root.Save(FilePath());
}
