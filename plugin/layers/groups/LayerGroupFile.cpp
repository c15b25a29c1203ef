// CadLayerGroup.idp: numbered groups by their names, each with its numbered layers. The file has one owner
// and is rewritten whole, so what the reader passes over is told to the log and kept in a copy.
#include <memory>
#include <unordered_set>

#include "plugin/base/FileFaults.h"
#include "plugin/base/Folders.h"
#include "plugin/base/VersionMark.h"
#include "plugin/layers/ParameterEntry.h"
#include "plugin/layers/groups/CCADGroupLayer.h"
#include "plugin/layers/groups/CCADManagerLayer.h"
#include "plugin/layers/groups/LayerGroupFields.h"

namespace {

CString FilePath() {
  return ZP::GetDataPath() + L"CadLayerGroup.idp";
}

// Visits the entries of a numbered list that have a key, as many numbers as the list has keys. False when
// there are others.
template <typename Visit> bool ForEachNumbered(CIDPEx& list, Visit visit) {
  bool all = true;
  for (int i = 0; i < list.SubKeyNames.GetSize(); ++i) {
    CIDPEx* entry = list.GetSubItem(ZP::itoa(i));
    if (entry && !entry->SubKeyNames.IsEmpty())
      visit(*entry, entry->SubKeyNames[0]);
    else
      all = false;
  }
  return all;
}

// The name stands under the first key, whatever that is called.
bool ReadLayers(CIDPEx& list, CStringArray& layers) {
  return ForEachNumbered(list, [&](CIDPEx& record, const CString& key) {
    CString layer;
    record.GetSubValue(key, layer);
    layers.Add(layer);
  });
}

} // namespace

int CCADManagerLayer::ReadData() {
  const CString path = FilePath();
  CIDPEx root;
  if (!root.Open(path)) return 0;
  CString version;
  root.GetSubValue(L"Version", version);
  if (!ZP::CheckVersionMark(path, version, {kLayerGroupVersion})) return 1;
  m_arrGroups.SetSize(0);
  CIDPEx* section = root.GetSubItem(kLayerGroupSection);
  if (!section) {
    idp::LogFault(path, kLayerGroupSection, L"缺少此段");
    return 1;
  }
  std::unordered_set<CString> names; // asking Add for each would cost a walk
  const bool all = ForEachNumbered(*section, [&](CIDPEx& record, const CString& name) {
    CIDPEx* list = record.GetSubItem(name);
    if (!list) return;
    const CString position = CString(kLayerGroupSection) + L"\\" + name;
    auto group = std::make_unique<CCADGroupLayer>();
    group->SetName(name);
    if (!ReadLayers(*list, group->Layers)) idp::LogUnread(path, position, L"编号不连续或图层无键，有的图层");
    if (names.insert(name).second)
      m_arrGroups.Add(group.release());
    else
      idp::LogUnread(path, position, L"分组重名，后一组");
  });
  if (!all) idp::LogUnread(path, kLayerGroupSection, L"编号不连续或分组无键，有的分组");
  return 1;
}

int CCADManagerLayer::SaveData() {
  CIDPEx root;
  root.SetSubValue(L"Version", kLayerGroupVersion);
  CIDPEx& section = layers::Entry(root, kLayerGroupSection, L"");
  for (int i = 0; i < m_arrGroups.GetSize(); ++i) {
    const CCADGroupLayer& group = *m_arrGroups[i];
    CIDPEx& list = layers::Entry(layers::NumberedEntry(section, i), group.GetName(), L"");
    for (int j = 0; j < group.Layers.GetSize(); ++j)
      layers::NumberedEntry(list, j).SetSubValue(kGroupedLayerKey, group.Layers[j]);
  }
  return root.Save(FilePath());
}
