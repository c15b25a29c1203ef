#include "plugin/layers/dialogs/CZPLayerManagerDlg.h"

#include "plugin/graph/Notice.h"
#include "plugin/layers/ApplyScheme.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/SchemeFiles.h"
#include "plugin/layers/dialogs/CZPAddDlg.h"
#include "plugin/layers/dialogs/CZPRenameDlg.h"
#include "plugin/layers/dialogs/SchemeList.h"

namespace {

constexpr int kDefaultEntry = 0; // can be neither deleted nor renamed

} // namespace

CZPLayerManagerDlg::CZPLayerManagerDlg()
    : CDialog(L"图层管理器(目前支持空调水路、采暖和负荷计算模块，其它模块图层在相应图层管理控制，"
              L"后期将会全部统一到一个图层管理器中。)"),
      m_tree(*this, *CZPManagerLayer::GetInstance()), m_scheme(*CZPManagerLayer::GetInstance()) {
  m_schemes.SelectionChanged.Connect([this] { SelectScheme(); });
  m_add.Clicked.Connect([this] { AddScheme(); });
  m_remove.Clicked.Connect([this] { RemoveScheme(); });
  m_rename.Clicked.Connect([this] { RenameScheme(); });
  m_tree.Selected.Connect([this] { m_grid.Show(m_tree.Layers()); });
  m_apply.Clicked.Connect([this] { layers::ApplyScheme(m_scheme); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
  m_ok.Clicked.Connect([this] { OnOK(); });
}

// Back to what the file holds: "取消" drops the edits since the last save, but not a change of scheme.
CZPLayerManagerDlg::~CZPLayerManagerDlg() {
  layers::ReadScheme(m_scheme, m_scheme.GetPlanName());
}

UiLayout CZPLayerManagerDlg::Layout() {
  return ui::Column({
      ui::Row({ui::Item(m_schemes).Size(220, 0), ui::Item(m_add), ui::Item(m_remove), ui::Item(m_rename),
               ui::Space()}),
      ui::Row({ui::Item(m_tree.m_tree).Size(190, 400), ui::Item(m_grid).Stretch(1).Size(976, 400)})
          .Stretch(1),
      ui::Row({ui::Item(m_restore).Size(96, 0), ui::Item(m_apply).Size(124, 0), ui::Space(),
               ui::Item(m_cancel), ui::Item(m_ok)}),
  });
}

void CZPLayerManagerDlg::OnInitDialog() {
  FillSchemes(m_scheme.GetPlanName());
  ShowScheme();
}

void CZPLayerManagerDlg::OnOK() {
  layers::ApplyScheme(m_scheme);
  CDialog::OnOK();
}

void CZPLayerManagerDlg::FillSchemes(const CString& selected) {
  layers::FillSchemes(m_schemes);
  m_schemes.SetCurSel(m_schemes.FindStringExact(selected));
  ShowButtons();
}

void CZPLayerManagerDlg::ShowButtons() {
  const bool others = m_schemes.GetCurSel() > kDefaultEntry;
  m_remove.EnableWindow(others);
  m_rename.EnableWindow(others);
}

void CZPLayerManagerDlg::ShowScheme() {
  m_tree.Fill();
  m_grid.Show(m_tree.Layers());
}

// The nodes that tree and grid show go while the file is read.
void CZPLayerManagerDlg::Load(const CString& name) {
  m_tree.Clear();
  m_grid.Show({});
  layers::ReadScheme(m_scheme, name);
  ShowScheme();
  ShowButtons();
}

void CZPLayerManagerDlg::SelectScheme() {
  if (m_schemes.GetText() == m_scheme.GetPlanName()) return; // the same again is no change
  m_scheme.SaveData();
  Load(m_schemes.GetText());
}

// The copy was made of a file; edits of the scheme being left are saved into that scheme only now.
void CZPLayerManagerDlg::AddScheme() {
  CZPAddDlg dialog(this);
  if (dialog.DoModal() != IDOK) return;
  FillSchemes(dialog.Name());
  m_scheme.SaveData();
  Load(dialog.Name());
}

void CZPLayerManagerDlg::RemoveScheme() {
  const CString name = m_schemes.GetText();
  CString question;
  question.Format(L"删除不可恢复，确定要删除【%s】吗？", name);
  if (!notice::Confirm(question) || !layers::DeleteScheme(name)) return;
  FillSchemes(layers::kDefaultScheme);
  Load(layers::kDefaultScheme);
}

// A name that another scheme has is not looked for: the file can't get it, and that raises.
void CZPLayerManagerDlg::RenameScheme() {
  const int entry = m_schemes.GetCurSel();
  const auto name = layers::AskName(L"重命名", m_schemes.GetText(), this);
  if (!name) return;
  layers::RenameScheme(m_schemes.GetText(), *name);
  m_schemes.DeleteString(entry);
  m_schemes.InsertString(entry, *name);
  m_schemes.SetCurSel(entry);
  m_scheme.SetPlanName(*name);
  m_scheme.SaveData();
}
