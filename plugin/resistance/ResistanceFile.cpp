// VacCal.xml. A save begins by reading what the file holds at that moment, so that what isn't edited here
// stays in it: the pictures, and whatever others have put there.
#include "plugin/resistance/ResistanceFile.h"

#include "plugin/base/NumberText.h"
#include "plugin/base/xml/ItemWalk.h"
#include "plugin/resistance/CZPLocalResistanceMng.h"
#include "plugin/resistance/FittingColumns.h"
#include "plugin/resistance/TeeFlows.h"

using namespace resistance;

namespace {

// The first item of the flow, or null.
VkDtDictItem* FindFlow(VkDtDictionary* part, const CString& key) {
  return xml::FindItem(part,
                       [&](const VkDtDictItem& item) { return item.GetAttributeValue(kFlowKey) == key; });
}

// An attribute that is missing counts as the empty text and as 0.
CZPPipePartsCoe FittingOf(const VkDtDictItem& item) {
  CZPPipePartsCoe fitting;
  fitting.szName = item.GetAttributeValue(kName);
  for (const FittingColumn& column : kFittingColumns)
    fitting.*column.coefficient = item.GetAttributeDoubleValue(column.attribute);
  return fitting;
}

CString CoefficientText(double coefficient) {
  return ZP::ftoa(coefficient, 2, true);
}

void PutFitting(const CZPPipePartsCoe& fitting, VkDtDictItem& item) {
  item.SetAttributeValue(kName, fitting.szName);
  for (const FittingColumn& column : kFittingColumns)
    item.SetAttributeValue(column.attribute, CoefficientText(fitting.*column.coefficient));
}

} // namespace

int CZPLocalResistanceMng::ReadData() {
  VkDtDictionary root(nullptr, nullptr);
  if (!root.ReadFromXML(FilePath())) {
    m_nOpenStatus = 1;
    return 0;
  }
  m_nOpenStatus = 0;
  m_arrPartsCoe.RemoveAll();
  if (VkDtDictionary* fittings = root.FindDict(kFittingPart))
    xml::WalkItems(*fittings, [&](const VkDtDictItem& item) {
      CZPPipePartsCoe fitting = FittingOf(item);
      if (!fitting.szName.IsEmpty()) m_arrPartsCoe.Add(fitting);
      return true;
    });
  if (VkDtDictionary* flows = root.FindDict(kFlowPart))
    for (const TeeFlow& flow : kTeeFlows) GetLocalCoe(flow.key, m_coe3T4T.*flow.coefficient, flows);
  if (VkDtDictionary* pictures = root.FindDict(kPicturePart)) GetAllBmp(pictures);
  return 1;
}

int CZPLocalResistanceMng::GetLocalCoe(const CString& tid, double& coe, VkDtDictionary* dict) {
  const VkDtDictItem* item = FindFlow(dict, tid);
  if (!item) return 0;
  coe = item->GetAttributeDoubleValue(kCoefficient);
  return 1;
}

int CZPLocalResistanceMng::SetLocalCoe(const CString& tid, double& coe, VkDtDictionary* dict) {
  VkDtDictItem* item = FindFlow(dict, tid);
  if (!item) return 0;
  item->SetAttributeValue(kCoefficient, CoefficientText(coe));
  return 1;
}

int CZPLocalResistanceMng::GetAllBmp(VkDtDictionary* dict) {
  if (!dict) return 0;
  xml::WalkItems(*dict, [&](const VkDtDictItem& item) {
    m_mapBmp[item.GetAttributeValue(kName)] = item.GetAttributeValue(kPicture);
    return true;
  });
  return 1;
}

int CZPLocalResistanceMng::SaveData() {
  const CString path = FilePath();
  VkDtDictionary root(nullptr, nullptr);
  if (!root.ReadFromXML(path)) return 0;
  VkDtDictionary& fittings = *root.FindOrAddDict(kFittingPart);
  fittings.Reset();
  for (int i = 0; i < m_arrPartsCoe.GetSize(); ++i)
    PutFitting(m_arrPartsCoe[i], *fittings.FindOrAddDict(ZP::itoa(i)));
  VkDtDictionary* flows = root.FindOrAddDict(kFlowPart);
  for (const TeeFlow& flow : kTeeFlows) SetLocalCoe(flow.key, m_coe3T4T.*flow.coefficient, flows);
  return root.SaveToXML(path) ? 1 : 0;
}
