// The pipes and ducts that connect to each fan-coil block.
#include "plugin/base/NumberText.h"
#include "plugin/fancoil/CKTDatabaseOperation.h"
#include "plugin/fancoil/ConnectionFields.h"
#include "plugin/fancoil/WaterDatabase.h"

using namespace fancoil;

namespace {

constexpr const wchar_t* kBlockId = L"BlockId";
constexpr const wchar_t* kPipeId = L"PipeId";
constexpr const wchar_t* kDuctId = L"DuctId1";

template <typename Record> struct FieldReader {
  const VkDtDictItem& item;
  const wchar_t* attribute;
  Record& record;

  void operator()(CString Record::*member) const { record.*member = item.GetAttributeValue(attribute); }
  void operator()(double Record::*member) const { record.*member = item.GetAttributeDoubleValue(attribute); }
  void operator()(PointCoordinate<Record> at) const {
    record.*at.point.*at.coordinate = item.GetAttributeDoubleValue(attribute);
  }
};

template <typename Record> struct FieldWriter {
  VkDtDictItem& item;
  const wchar_t* attribute;
  const Record& record;

  void operator()(CString Record::*member) const { item.SetAttributeValue(attribute, record.*member); }
  void operator()(double Record::*member) const { item.SetAttributeDoubleValue(attribute, record.*member); }
  void operator()(PointCoordinate<Record> at) const {
    item.SetAttributeDoubleValue(attribute, record.*at.point.*at.coordinate);
  }
};

// Calls take for each connection of the block, with its item and the record without the system's name.
template <typename Record, std::size_t Count, typename Take>
void ReadConnections(VkDtDictionary& part, int blockId, const ConnectionField<Record> (&fields)[Count],
                     Take take) {
  WalkItems(part, [&](const VkDtDictItem& item) {
    if (item.GetAttributeIntValue(kBlockId) != blockId) return true;
    Record record;
    for (const auto& field : fields)
      std::visit(FieldReader<Record>{item, field.attribute, record}, field.target);
    take(item, record);
    return true;
  });
}

// DelCur steps back to the item before, so that the step onwards misses none.
void DeleteConnections(VkDtDictionary& part, int blockId) {
  for (part.MoveToFirst(); !part.IsOut(); part.MoveToNext()) {
    const VkDtDictItem* item = part.GetCurData();
    if (item && item->GetAttributeIntValue(kBlockId) == blockId) part.DelCur();
  }
}

// The index is the record's place in what the caller saves, records that were left out counted.
template <typename Record, std::size_t Count>
void WriteConnection(VkDtDictionary& part, const wchar_t* prefix, int index, int blockId,
                     const wchar_t* systemAttribute, int systemId, const Record& record,
                     const ConnectionField<Record> (&fields)[Count]) {
  VkDtDictItem& item =
      *part.FindOrAddDict(prefix + ZP::ftoa(index, 2, true) + L"-" + ZP::ftoa(blockId, 2, true));
  item.SetAttributeIntValue(kName, blockId);
  item.SetAttributeIntValue(kBlockId, blockId);
  item.SetAttributeIntValue(systemAttribute, systemId);
  for (const auto& field : fields)
    std::visit(FieldWriter<Record>{item, field.attribute, record}, field.target);
}

} // namespace

bool CKTDatabaseOperation::GetFCUConnectPipeData(const CString& block,
                                                 CZPArray<SKTFCUMainPipeData>& records) {
  int id = kNoId;
  if (!GetFCUBlockID(block, id)) return false;
  VkDtDictionary* part = GetKtTypeDict(kPipeConnectionPart);
  if (!part) return false;
  if (id == kNoId) return true;
  ReadConnections(*part, id, kPipeConnectionFields,
                  [&](const VkDtDictItem& item, SKTFCUMainPipeData& record) {
                    record.szPipeName = GetPipecoilName(item.GetAttributeIntValue(kPipeId));
                    records.Add(record);
                  });
  return true;
}

bool CKTDatabaseOperation::GetFCUConnectDuctData(const CString& block, CZPArray<SKTFCUDuctData>& records) {
  int id = kNoId;
  if (!GetFCUBlockID(block, id)) return false;
  VkDtDictionary* part = GetKtTypeDict(kDuctConnectionPart);
  if (!part) return false;
  if (id == kNoId) return true;
  ReadConnections(*part, id, kDuctConnectionFields, [&](const VkDtDictItem& item, SKTFCUDuctData& record) {
    record.szDuctName = GetDuctName(item.GetAttributeIntValue(kDuctId));
    records.Add(record);
  });
  return true;
}

bool CKTDatabaseOperation::SaveFCUConnectPipeData(const CString& block,
                                                  const CZPArray<SKTFCUMainPipeData>& records) {
  int id = kNoId;
  if (!m_bInitialized || !GetOrAddFCUBlockID(block, id)) return false;
  VkDtDictionary* part = GetKtTypeDict(kPipeConnectionPart);
  if (!part) return false;
  DeleteConnections(*part, id);
  for (int i = 0; i < records.GetSize(); ++i) {
    int systemId = kNoId;
    if (!GetMainPipeID(records[i].szPipeName, systemId)) continue;
    WriteConnection(*part, L"Pipe", i, id, kPipeId, systemId, records[i], kPipeConnectionFields);
  }
  return m_pDictionary->SaveToXML(WaterDatabasePath());
}

// On purpose nothing goes to the disk here: ducts are saved together with the block's pipes.
bool CKTDatabaseOperation::SaveFCUConnectDuctData(const CString& block,
                                                  const CZPArray<SKTFCUDuctData>& records) {
  int id = kNoId;
  if (!m_bInitialized || !GetOrAddFCUBlockID(block, id)) return false;
  VkDtDictionary* part = GetKtTypeDict(kDuctConnectionPart);
  if (!part) return false;
  DeleteConnections(*part, id);
  for (int i = 0; i < records.GetSize(); ++i) {
    int systemId = kNoId;
    if (!GetDuctID(records[i].szDuctName, systemId)) continue;
    WriteConnection(*part, L"Duct", i, id, kDuctId, systemId, records[i], kDuctConnectionFields);
  }
  return true;
}
