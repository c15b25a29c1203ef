#include "plugin/layers/dialogs/LayerTicks.h"

#include <algorithm>
#include <unordered_set>

#include "plugin/layers/LayerService.h"

void layers::FillLayerTree(CMutiTreeCtrl& tree) {
  const UiQuietly quietly(tree);
  tree.DeleteAllItems();
  CStringArray names;
  if (!ZP::GetCurDwgAllLayer(names)) return;
  HTREEITEM top = tree.InsertItem(L"全部图层");
  for (const CString& name : names) tree.InsertItem(name, top);
  tree.Expand(top);
}

void layers::TickLayers(CMutiTreeCtrl& tree, const CStringArray& names) {
  HTREEITEM top = tree.GetRootItem();
  if (!top) return;
  const UiQuietly quietly(tree);
  std::unordered_set<CString> ticked(names.begin(), names.end());
  ticked.erase(CString()); // no layer is without a name
  for (const auto& layer : top->children) tree.SetCheck(layer.get(), ticked.contains(layer->text));
  TickTop(tree);
}

void layers::TickTop(CMutiTreeCtrl& tree) {
  HTREEITEM top = tree.GetRootItem();
  if (!top) return;
  tree.SetCheck(top, std::all_of(top->children.begin(), top->children.end(),
                                 [](const auto& layer) { return layer->checked; }));
}

CStringArray layers::TickedLayers(const CMutiTreeCtrl& tree) {
  CStringArray names;
  if (const HTREEITEM top = tree.GetRootItem())
    for (const auto& layer : top->children)
      if (layer->checked) names.Add(layer->text);
  return names;
}
