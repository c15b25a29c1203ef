// Makes a layer scheme as a copy of the file of another one.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CDialog.h"
#include "host/ui/CEdit.h"

class CZPAddDlg : public CDialog {
 public:
  explicit CZPAddDlg(CWnd* parent);
  UiLayout Layout() override;

  // After OK: the name of the new scheme, whose file is there.
  const CString& Name() const { return m_result; }

  CEdit m_name{*this, L"方案名称："};
  CComboBox m_source{*this, L"从此处复制方案："};
  CButton m_add{*this, L"添加", CButton::Role::accept};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  void AskAgain(const CString& text);
  CString m_result;
};
