// The file of a layer scheme: Data\LayerManager\NAME.idp, a tree of numbered categories, numbered groups, and
// layers by their identifiers.
#include <memory>

#include "plugin/base/CIDPEx.h"
#include "plugin/base/NumberText.h"
#include "plugin/base/VersionMark.h"
#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "plugin/layers/LayerFields.h"
#include "plugin/layers/ParameterEntry.h"
#include "plugin/layers/SchemeFiles.h"

namespace {

constexpr const wchar_t* kVersion = L"1.0";

// The node of a numbered list; the writer leaves no gap, so a missing number means a damaged file.
CIDPEx& Numbered(CIDPEx& list, int number) {
  CIDPEx* node = list.GetSubItem(ZP::itoa(number));
  if (!node) AfxThrowInvalidArgException();
  return *node;
}

// flag is the one of the whole reading: where a node has none, the last one read holds, as callers expect.
std::unique_ptr<CZPLayer> ReadLayer(CIDPEx& node, int& flag) {
  auto layer = std::make_unique<CZPLayer>();
  node.GetSubValue(kAllowModifyKey, flag);
  layer->SetAllowModify(flag != 0);
  for (const LayerField& field : kLayerFields)
    std::visit([&](auto member) { node.GetSubValue(field.key, layer->Data().*member); }, field.member);
  return layer;
}

// The flags of categories and groups are read, because the next layer without one takes the last one read,
// but deliberately not applied: after a load the user may rename and delete all of them.
std::unique_ptr<CZPGroupLayer> ReadGroup(CIDPEx& numbered, int& flag) {
  auto group = std::make_unique<CZPGroupLayer>();
  const CString name = numbered.SubKeyNames[0];
  group->SetName(name);
  numbered.GetSubValue(name, flag);
  CIDPEx* layerList = numbered.GetSubItem(name);
  for (const CString key : layerList->SubKeyNames)
    group->Add(ReadLayer(*layerList->GetSubItem(key), flag).release());
  return group;
}

std::unique_ptr<CZPSystemLayer> ReadCategory(CIDPEx& numbered, int& flag) {
  auto category = std::make_unique<CZPSystemLayer>();
  const CString name = numbered.SubKeyNames[0];
  category->SetName(name);
  numbered.GetSubValue(name, flag);
  CIDPEx* groupList = numbered.GetSubItem(name);
  for (int i = 0; i < groupList->SubKeyNames.GetSize(); ++i)
    category->Add(ReadGroup(Numbered(*groupList, i), flag).release());
  return category;
}

CIDPEx& NamedEntry(CIDPEx& list, int number, const CZPLayerObject& object) {
  return layers::Entry(layers::NumberedEntry(list, number), object.GetName(), object.IsAllowModify() ? 1 : 0);
}

void WriteLayer(CIDPEx& layerList, const CZPLayer& layer) {
  CIDPEx& node = layers::Entry(layerList, layer.GetKorLayer(), L"");
  node.SetSubValue(kAllowModifyKey, layer.IsAllowModify() ? 1 : 0);
  for (const LayerField& field : kLayerFields)
    std::visit([&](auto member) { node.SetSubValue(field.key, layer.Data().*member); }, field.member);
}

} // namespace

bool CZPManagerLayer::ReadData(const CString& planName) {
  m_strPlanName = planName; // even where nothing is read: the caller has turned to this scheme
  const CString path = layers::SchemePath(planName);
  CIDPEx root;
  if (!root.Open(path)) return false;
  CString version;
  root.GetSubValue(L"Version", version);
  if (!ZP::CheckVersionMark(path, version, {kVersion})) return true;
  RemoveAll();
  CIDPEx* categoryList = root.GetSubItem(kSchemeSection);
  if (!categoryList) return true;
  int flag = 1;
  for (int i = 0; i < categoryList->SubKeyNames.GetSize(); ++i)
    Add(ReadCategory(Numbered(*categoryList, i), flag).release());
  return true;
}

bool CZPManagerLayer::SaveData() {
  if (m_strPlanName.IsEmpty()) return false;
  CIDPEx root;
  root.SetSubValue(L"Version", kVersion);
  CIDPEx& categoryList = layers::Entry(root, kSchemeSection, m_strPlanName);
  for (int i = 0; i < m_arrCategories.GetSize(); ++i) {
    const CZPSystemLayer& category = *m_arrCategories[i];
    CIDPEx& groupList = NamedEntry(categoryList, i, category);
    for (int j = 0; j < category.Groups().GetSize(); ++j) {
      const CZPGroupLayer& group = *category.Groups()[j];
      CIDPEx& layerList = NamedEntry(groupList, j, group);
      for (const CZPLayer* layer : group.Layers()) WriteLayer(layerList, *layer);
    }
  }
  return root.Save(layers::SchemePath(m_strPlanName)) != 0;
}
