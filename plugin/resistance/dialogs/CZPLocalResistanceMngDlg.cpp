#include "plugin/resistance/dialogs/CZPLocalResistanceMngDlg.h"

CZPLocalResistanceMngDlg::CZPLocalResistanceMngDlg(CWnd* parent) : CDialog(L"局阻系数管理器", parent) {
  m_sheet.AddPage(m_fittings);
  m_sheet.AddPage(m_tees);
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
  m_apply.Clicked.Connect([this] { CommitActivePage(); });
}

UiLayout CZPLocalResistanceMngDlg::Layout() {
  return ui::Column({
      ui::Item(m_sheet).Stretch(1),
      ui::Row({ui::Space(), ui::Item(m_ok), ui::Item(m_cancel), ui::Item(m_apply)}),
  });
}

void CZPLocalResistanceMngDlg::OnInitDialog() {
  m_fittings.Open();
  m_tees.Open();
}

void CZPLocalResistanceMngDlg::OnOK() {
  CommitActivePage();
  CDialog::OnOK();
}

// On purpose not the other page, whatever was changed on it: users apply each page while it shows.
void CZPLocalResistanceMngDlg::CommitActivePage() {
  static_cast<CoefficientPage*>(m_sheet.GetActivePage())->Commit();
}
