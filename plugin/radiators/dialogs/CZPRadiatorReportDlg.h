// Shows one of the tables of correction factors and lets the user choose a cell. What the text of the cell
// means is for whoever asked: labels and dashes may be chosen as well as values.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CReportCtrl.h"

class CZPRadiatorReportDlg : public CDialog {
 public:
  // Index 0 to 3 for β1 to β4; the table of any other is empty.
  CZPRadiatorReportDlg(int table, CWnd* parent);
  UiLayout Layout() override;

  CReportCtrl m_report;
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};
};

namespace radiators {

// Runs the dialog. IDOK with the text of the chosen cell, "" when none was chosen; after any other result
// text is as it was.
int ChooseCorrectionFactor(int table, CString& text, CWnd* parent);

} // namespace radiators
