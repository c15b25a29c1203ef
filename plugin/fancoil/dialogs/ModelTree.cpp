#include "plugin/fancoil/dialogs/ModelTree.h"

namespace fancoil {

bool ModelFilter::Passes(const SKTFCUEquipmentData& data) const {
  return (install.IsEmpty() || data.szInstallStyle == install) &&
         (structure.IsEmpty() || data.szStructStyle == structure);
}

void ModelTree::Fill(const CFCUManager& catalogue, const ModelFilter& filter) {
  const UiQuietly quietly(*this);
  DeleteAllItems();
  HTREEITEM root = InsertItem(catalogue.GetName());
  Expand(root);
  for (CFCUFactory* factory : catalogue.m_arrFactories) {
    if (!factory) continue;
    HTREEITEM maker = InsertItem(factory->GetName(), root, factory);
    for (CFCUEquipment* equipment : factory->m_arrEquipments)
      if (equipment && filter.Passes(equipment->m_data)) InsertItem(equipment->GetName(), maker, equipment);
  }
}

// By names, as the model has them. Where a name stands twice, that very model comes first.
void ModelTree::SelectModel(const CFCUEquipment* equipment) {
  const UiQuietly quietly(*this);
  SelectItem(nullptr);
  HTREEITEM root = GetRootItem();
  if (!equipment || !root) return;
  HTREEITEM found = nullptr;
  for (const auto& maker : root->children) {
    if (maker->text != equipment->m_data.szFactory) continue;
    Expand(maker.get());
    for (const auto& model : maker->children)
      if (model->data == equipment || (!found && model->text == equipment->GetName())) found = model.get();
  }
  SelectItem(found);
}

CFCUFactory* ModelTree::MakerOf(HTREEITEM item) const {
  HTREEITEM above = GetParentItem(item);
  return above && !above->parent ? static_cast<CFCUFactory*>(item->data) : nullptr;
}

CFCUEquipment* ModelTree::ModelOf(HTREEITEM item) const {
  HTREEITEM maker = GetParentItem(item);
  return maker && maker->parent ? static_cast<CFCUEquipment*>(item->data) : nullptr;
}

} // namespace fancoil
