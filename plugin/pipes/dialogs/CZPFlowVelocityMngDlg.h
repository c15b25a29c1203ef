// The limits of flow velocity by pipe size, in a grid with an empty row below that takes a new size. It works
// on the live table and saves it when it goes, however it was left.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CGridCtrl.h"
#include "plugin/pipes/limits/CZPFlowVelocityMng.h"

class CZPFlowVelocityMngDlg : public CDialog {
 public:
  explicit CZPFlowVelocityMngDlg(CWnd* parent);
  ~CZPFlowVelocityMngDlg() override;
  UiLayout Layout() override;

  CGridCtrl m_grid{*this, L"流速"};
  CButton m_ok{*this, L"确定", CButton::Role::accept};

 protected:
  void OnInitDialog() override { Fill(); }

 private:
  void Fill();
  void EndEdit(const UiEditEnd& end);
  void AddLimit(const UiEditEnd& end, const CString& text);
  void Rename(const UiEditEnd& end, const CString& text, CZPPipeLimit& limit);
  void ChangeVelocity(const UiEditEnd& end, const CString& text, CZPPipeLimit& limit);
  // Puts a text into the edited cell and leaves the keyboard on it.
  void ReturnTo(const UiEditEnd& end, const CString& text);

  CZPFlowVelocityMng& m_table = *CZPFlowVelocityMng::GetInstance();
};
