#include "plugin/fancoil/CatalogueFile.h"

#include "plugin/base/Folders.h"
#include "plugin/base/VersionMark.h"
#include "plugin/fancoil/EquipmentFields.h"

namespace fancoil {

CString CataloguePath() {
  return ZP::GetDataPath() + L"FCUData.idp";
}

bool OpenCatalogue(CIDPEx& root, bool& known) {
  const CString path = CataloguePath();
  known = false;
  if (!root.Open(path)) return false;
  CString mark;
  root.GetValue(mark);
  known = ZP::CheckVersionMark(path, mark, {kVersionMark});
  return true;
}

void ReadEquipment(CIDPEx& node, SKTFCUEquipmentData& data) {
  for (const EquipmentField& field : kEquipmentFields)
    std::visit([&](auto member) { node.GetSubValue(field.key, data.*member); }, field.member);
}

void WriteEquipment(CIDPEx& node, const SKTFCUEquipmentData& data) {
  for (const EquipmentField& field : kEquipmentFields)
    std::visit([&](auto member) { node.SetSubValue(field.key, data.*member); }, field.member);
}

} // namespace fancoil
