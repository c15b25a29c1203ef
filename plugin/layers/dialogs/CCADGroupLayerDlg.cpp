#include "plugin/layers/dialogs/CCADGroupLayerDlg.h"

#include <memory>

#include "plugin/graph/Notice.h"
#include "plugin/layers/dialogs/LayerTicks.h"
#include "plugin/layers/groups/CCADGroupLayer.h"

CCADGroupLayerDlg::CCADGroupLayerDlg(CWnd* parent) : CDialog(L"CAD当前图纸图层分组", parent) {
  m_groups.ShowCaption(false);
  m_groups.AddColumn(L"序号", 0);
  m_groups.AddColumn(L"分组", 180);
  m_groups.CellClicked.Connect([this](int row, int) { layers::TickLayers(m_layers, At(row)->Layers); });
  m_groups.EditEnded.Connect([this](UiEditEnd& end) { EndNameEdit(end); });
  m_layers.CheckChanged.Connect([this](HTREEITEM item) {
    if (item != m_layers.GetRootItem()) layers::TickTop(m_layers);
  });
  m_add.Clicked.Connect([this] { Add(); });
  m_remove.Clicked.Connect([this] { Remove(); });
  m_modify.Clicked.Connect([this] { Modify(); });
  m_exit.Clicked.Connect([this] { OnCancel(); });
}

CCADGroupLayerDlg::~CCADGroupLayerDlg() {
  m_manager.SaveData();
}

UiLayout CCADGroupLayerDlg::Layout() {
  return ui::Column({
      ui::Row({
                  ui::Column({ui::Item(m_groups).Stretch(1).Size(200, 300),
                              ui::Row({ui::Item(m_add), ui::Item(m_remove), ui::Space()})}),
                  ui::Item(m_layers).Stretch(1).Size(260, 300),
              })
          .Stretch(1),
      ui::Row({ui::Space(), ui::Item(m_modify), ui::Item(m_exit)}),
  });
}

void CCADGroupLayerDlg::OnInitDialog() {
  const UiQuietly quietly(m_groups);
  m_groups.DeleteAllRows();
  for (CCADGroupLayer* group : m_manager.Groups()) m_groups.AddRow({L"", group->GetName()}, group);
  layers::FillLayerTree(m_layers);
}

void CCADGroupLayerDlg::Add() {
  auto group = std::make_unique<CCADGroupLayer>();
  group->Layers = layers::TickedLayers(m_layers);
  if (m_manager.Add(group.get())) {
    m_groups.SetCurSel(m_groups.AddRow({L"", group->GetName()}, group.get()));
    group.release();
  }
  // Otherwise there is one without a name already, and the user is to name what stands last.
  m_groups.EditCell(m_groups.GetRowCount() - 1, kNameColumn);
}

// What the current drawing lacks of the group's layers goes: the ticks are what the user sees.
void CCADGroupLayerDlg::Modify() {
  const int row = m_groups.GetCurSel();
  if (row >= 0) At(row)->Layers = layers::TickedLayers(m_layers);
}

void CCADGroupLayerDlg::Remove() {
  const int row = m_groups.GetCurSel();
  if (row < 0) return;
  CString question;
  question.Format(L"删除不可恢复，确定要删除【%s】吗?", At(row)->GetName());
  if (notice::Confirm(question)) Drop(row);
}

void CCADGroupLayerDlg::Drop(int row) {
  if (m_manager.Remove(At(row))) m_groups.DeleteRow(row);
}

// A group whose name can't be, and whose window is closing, goes without a word: the user can no longer be
// asked for another name. The row keeps the text as it was typed, blanks at its ends included.
void CCADGroupLayerDlg::EndNameEdit(UiEditEnd& end) {
  const CString name = CString(end.text).Trim();
  bool taken = false;
  for (int row = 0; row < m_groups.GetRowCount(); ++row)
    taken = taken || (row != end.row && CString(m_groups.GetItemText(row, kNameColumn)).Trim() == name);
  if (!name.IsEmpty() && !taken) {
    At(end.row)->SetName(name);
    return;
  }
  if (end.closing) return Drop(end.row);
  CString message = L"图层组名称为空字串符，请重新输入!";
  if (!name.IsEmpty()) message.Format(L"【%s】已经存在，请重新输入图层组名称！", name);
  notice::Tell(message);
  end.reopen = true;
}
