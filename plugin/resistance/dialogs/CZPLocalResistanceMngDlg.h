// The manager of local-resistance coefficients: a page of fittings, and one of tees and crosses. Each page
// has its own copy of what it shows.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CTabSheet.h"
#include "plugin/resistance/dialogs/CZPLocalResistance3T4TDlg.h"
#include "plugin/resistance/dialogs/CZPLocalResistancePartsDlg.h"

class CZPLocalResistanceMngDlg : public CDialog {
 public:
  explicit CZPLocalResistanceMngDlg(CWnd* parent);
  UiLayout Layout() override;

  CTabSheet m_sheet{*this, L"局阻系数"};
  CZPLocalResistancePartsDlg m_fittings{*this};
  CZPLocalResistance3T4TDlg m_tees{*this};
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};
  CButton m_apply{*this, L"应用"};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  void CommitActivePage();
};
