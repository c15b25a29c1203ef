// Asks for a name, which must not be empty. What names are legal beyond that is for whoever asks.
#pragma once

#include <optional>

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CEdit.h"

class CZPRenameDlg : public CDialog {
 public:
  CZPRenameDlg(const CString& title, const CString& name, CWnd* parent);
  UiLayout Layout() override;

  // After OK: the name without blanks at its ends.
  const CString& Name() const { return m_result; }

  CEdit m_name{*this, L"名称："};
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  CString m_start;
  CString m_result;
};

namespace layers {

// The name that the user gives; nothing when he gives up.
std::optional<CString> AskName(const CString& title, const CString& start, CWnd* parent);

} // namespace layers
