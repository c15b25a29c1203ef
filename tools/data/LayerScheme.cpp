#include "tools/data/LayerScheme.h"

#include <memory>

#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "tools/data/Table.h"

namespace {

// The node of that name among those below owner, made at the end if need be: categories and groups come in
// the order in which the table first names them.
template <typename Node, typename Owner, typename Nodes>
Node& NodeOf(Owner& owner, const Nodes& nodes, const CString& name) {
  for (Node* node : nodes)
    if (node->GetName() == name) return *node;
  auto* node = new Node;
  node->SetName(name);
  owner.Add(node);
  return *node;
}

std::unique_ptr<CZPLayer> LayerOf(const Table& table, int row) {
  auto layer = std::make_unique<CZPLayer>();
  layer->SetKorLayer(table.Text(row, "identifier"));
  layer->SetUserLayer(table.Text(row, "layer"));
  layer->SetColorIndex(table.Integer(row, "color"));
  layer->SetLineType(table.Text(row, "linetype"));
  layer->SetLineTypeScale(table.Number(row, "ltscale"));
  layer->SetLineWeight(table.Number(row, "lineweight_mm"));
  layer->SetLayerCode(table.Text(row, "code"));
  layer->SetRemarks(table.Text(row, "remark"));
  // Modules ask for these by their identifiers, so the layer manager shall not let the user delete them.
  layer->SetAllowModify(false);
  return layer;
}

} // namespace

void WriteLayerScheme(const std::string& tables) {
  const Table table(tables, "layers.tsv");
  CZPManagerLayer& scheme = *CZPManagerLayer::GetInstance();
  scheme.SetPlanName(L"默认方案");
  scheme.RemoveAll();
  for (int row = 0; row < table.RowCount(); ++row) {
    auto layer = LayerOf(table, row);
    if (scheme.IsExist(layer->GetKorLayer())) table.Fail(row, "identifier twice");
    if (scheme.GetLayerFromUserLayer(layer->GetUserLayer())) table.Fail(row, "layer twice");
    auto& category = NodeOf<CZPSystemLayer>(scheme, scheme.Categories(), table.Text(row, "category"));
    auto& group = NodeOf<CZPGroupLayer>(category, category.Groups(), table.Text(row, "group"));
    group.Add(layer.release());
  }
  if (!scheme.SaveData()) throw TableError("默认方案.idp can't be written");
}
