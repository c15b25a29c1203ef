#include "plugin/layers/dialogs/LayerMenu.h"

#include <algorithm>

#include "plugin/graph/Notice.h"
#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/LayerService.h"
#include "plugin/layers/dialogs/CZPBatchModifyDlg.h"
#include "plugin/layers/dialogs/CZPLayerGridCtrl.h"
#include "plugin/layers/dialogs/SchemeTree.h"

layers::LayerMenu::LayerMenu(CDialog& dialog, CZPLayerGridCtrl& grid, const SchemeTree& tree)
    : m_dialog(dialog), m_grid(grid), m_tree(tree) {
  m_grid.Menu.SetProvider([this] { return Items(); });
  m_grid.Menu.Chosen.Connect([this](int command) { Obey(command); });
}

std::vector<UiMenuItem> layers::LayerMenu::Items() const {
  const CZPLayer* current = m_grid.Current();
  return {
      {newLayer, L"新建图层", m_tree.Group() != nullptr},
      {deleteLayer, L"删除图层", current && current->IsAllowModify()},
      {pick, L"从图中选取", current != nullptr},
      {copy, L"复制", current != nullptr},
      {paste, L"粘贴", current && m_clipboard},
      {modify, L"批量修改", current != nullptr},
  };
}

void layers::LayerMenu::Obey(int command) {
  switch (command) {
  case newLayer:
    return New();
  case deleteLayer:
    return Delete();
  case pick:
    return PickFromDrawing();
  case copy:
    return Copy();
  case paste:
    return Paste();
  case modify:
    return ModifySelected();
  }
}

// The number of an identifier counts the layers of the group and is compared with nothing else: other groups
// may have the identifier, and so may the group itself where a layer has been deleted.
void layers::LayerMenu::New() {
  CZPGroupLayer* group = m_tree.Group();
  if (!group) return;
  auto layer = std::make_unique<CZPLayer>();
  layer->SetAllowModify(true);
  layer->Copy(m_grid.Current() ? m_grid.Current() : m_clipboard.get());
  if (!group->Add(layer.get())) return;
  CZPLayer& added = *layer.release();
  CString identifier;
  identifier.Format(L"Layer%d", static_cast<int>(group->Layers().GetSize()));
  added.SetKorLayer(identifier);
  m_grid.SetCurSel(m_grid.AddLayer(added));
}

void layers::LayerMenu::Delete() {
  CZPLayer* layer = m_grid.Current();
  if (!layer || !layer->IsAllowModify()) return;
  CString question;
  question.Format(L"删除不可恢复，确定要删除[%s]图层吗？", layer->GetUserLayer());
  if (!notice::Confirm(question)) return;
  auto* group = dynamic_cast<CZPGroupLayer*>(layer->GetParent());
  if (!group || !group->Remove(layer)) return;
  const int row = m_grid.GetFocusRow();
  m_grid.Show(m_tree.Layers());
  m_grid.SetCurSel(std::min(row, m_grid.GetRowCount() - 1));
}

void layers::LayerMenu::PickFromDrawing() {
  const int row = m_grid.GetFocusRow();
  CString userLayer;
  m_dialog.BeginEditorCommand();
  const bool picked = ZP::GetSelectedEntityLayer(userLayer);
  m_dialog.CompleteEditorCommand();
  if (picked) m_grid.ShowByLayer(row, userLayer);
  m_grid.WriteRows(); // whether or not one was picked
}

void layers::LayerMenu::Copy() {
  if (!m_grid.Current()) return;
  if (!m_clipboard) m_clipboard = std::make_unique<CZPLayer>();
  m_clipboard->Copy(m_grid.Current());
}

void layers::LayerMenu::Paste() {
  if (!m_clipboard) return;
  const UiQuietly quietly(m_grid);
  for (const int row : m_grid.SelectedRows()) {
    m_grid.LayerAt(row)->Copy(m_clipboard.get());
    m_grid.ShowRow(row);
  }
}

void layers::LayerMenu::ModifySelected() {
  const CZPLayer* current = m_grid.Current();
  if (!current) return;
  CZPBatchModifyDlg dialog(current->Data(), &m_dialog);
  if (dialog.DoModal() != IDOK) return;
  const UiQuietly quietly(m_grid);
  for (const int row : m_grid.SelectedRows()) {
    dialog.Assign(m_grid.LayerAt(row)->Data());
    m_grid.ShowRow(row);
  }
}
