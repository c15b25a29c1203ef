#include "plugin/layers/dialogs/CZPRenameDlg.h"

CZPRenameDlg::CZPRenameDlg(const CString& title, const CString& name, CWnd* parent)
    : CDialog(title, parent), m_start(name) {
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CZPRenameDlg::Layout() {
  return ui::Column(
      {ui::Item(m_name).Size(260, 0), ui::Row({ui::Space(), ui::Item(m_ok), ui::Item(m_cancel)})});
}

void CZPRenameDlg::OnInitDialog() {
  m_name.SetText(m_start);
  m_name.SetFocus();
}

void CZPRenameDlg::OnOK() {
  m_result = CString(m_name.GetText()).Trim();
  if (m_result.IsEmpty()) {
    AfxMessageBox(L"命称不能为空字符串，请重新输入。"); // users know it in these very characters
    m_name.SetFocus();
    return;
  }
  CDialog::OnOK();
}

std::optional<CString> layers::AskName(const CString& title, const CString& start, CWnd* parent) {
  CZPRenameDlg dialog(title, start, parent);
  return dialog.DoModal() == IDOK ? std::optional<CString>(dialog.Name()) : std::nullopt;
}
