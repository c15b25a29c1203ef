#include "plugin/layers/dialogs/CZPAddDlg.h"

#include "plugin/layers/SchemeFiles.h"
#include "plugin/layers/dialogs/SchemeList.h"

CZPAddDlg::CZPAddDlg(CWnd* parent) : CDialog(L"添加图层方案", parent) {
  m_add.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CZPAddDlg::Layout() {
  return ui::Column({ui::Item(m_name).Size(260, 0), ui::Item(m_source).Size(260, 0),
                     ui::Row({ui::Space(), ui::Item(m_add), ui::Item(m_cancel)})});
}

void CZPAddDlg::OnInitDialog() {
  layers::FillSchemes(m_source);
  m_source.SetCurSel(0);
  m_name.SetFocus();
}

void CZPAddDlg::AskAgain(const CString& text) {
  AfxMessageBox(text);
  m_name.SetFocus();
}

void CZPAddDlg::OnOK() {
  const CString name = CString(m_name.GetText()).Trim();
  if (name.IsEmpty()) return AskAgain(L"名称不能为空字符串，请重新输入名称。");
  if (m_source.FindStringExact(name) >= 0) {
    CString text;
    text.Format(L"【%s】已经重名，请重新输入名称。", name);
    return AskAgain(text);
  }
  if (!layers::CopyScheme(m_source.GetText(), name)) return;
  m_result = name;
  CDialog::OnOK();
}
