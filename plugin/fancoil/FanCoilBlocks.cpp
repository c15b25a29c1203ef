// The known fan-coil blocks, each with its id and the point of the label that is placed with it.
#include <limits>

#include "host/afx/MessageLog.h"
#include "plugin/base/NumberText.h"
#include "plugin/fancoil/CKTDatabaseOperation.h"
#include "plugin/fancoil/WaterDatabase.h"

using namespace fancoil;

bool CKTDatabaseOperation::GetFCUBlockID(const CString& block, int& id) {
  const VkDtDictItem* item = FindItem(GetReadPart(kBlockPart), kBlockName, SmallLetters(block));
  id = item ? item->GetAttributeIntValue(kId) : kNoId;
  return item != nullptr;
}

// False also for a block that was found: callers preset the point and use it as it then is. Of equal names
// the last one counts.
bool CKTDatabaseOperation::GetFCUBzInsertPoint(const CString& block, AcGePoint3d& pt) {
  VkDtDictionary* blocks = GetReadPart(kBlockPart);
  if (!blocks) return false;
  const CString name = SmallLetters(block);
  WalkItems(*blocks, [&](const VkDtDictItem& item) {
    if (item.GetAttributeValue(kBlockName) == name)
      pt = {item.GetAttributeDoubleValue(kLabelX), item.GetAttributeDoubleValue(kLabelY), 0.0};
    return true;
  });
  return false;
}

bool CKTDatabaseOperation::AddOrModifyFCUBlock(const CString& block, const AcGePoint3d& pt, bool /*flag*/) {
  VkDtDictionary* blocks = GetReadPart(kBlockPart);
  if (!blocks) return false;
  const CString name = SmallLetters(block);
  if (FindItem(blocks, kBlockName, name)) {
    // A known block keeps the label point of its first registration. The new one is noted beside the items,
    // where nothing reads it.
    blocks->SetAttributeDoubleValue(kLabelX, pt.x);
    blocks->SetAttributeDoubleValue(kLabelY, pt.y);
    return true;
  }
  int highest = kNoId;
  bool first = true;
  WalkItems(*blocks, [&](const VkDtDictItem& item) {
    const int id = item.GetAttributeIntValue(kId);
    if (first || id > highest) highest = id;
    first = false;
    return true;
  });
  if (highest == std::numeric_limits<int>::max()) {
    afx::LogError(WaterDatabasePath() + L"：Block 的 id 已用尽，图块“" + block + L"”未登记");
    return false;
  }
  const int id = highest + 1;
  const CString itemName = L"Block" + ZP::ftoa(id, 2, true);
  VkDtDictionary* item = blocks->FindOrAddDict(itemName);
  item->SetAttributeValue(kName, itemName);
  item->SetAttributeValue(kBlockName, name);
  item->SetAttributeDoubleValue(kLabelX, pt.x);
  item->SetAttributeDoubleValue(kLabelY, pt.y);
  item->SetAttributeIntValue(kId, id);
  return true;
}

bool CKTDatabaseOperation::GetOrAddFCUBlockID(const CString& block, int& id) {
  if (GetFCUBlockID(block, id) && id != kNoId) return true;
  if (!AddOrModifyFCUBlock(block, AcGePoint3d::kOrigin, true)) return false;
  return GetFCUBlockID(block, id) && id != kNoId; // a damaged file may hold the block with no id
}
