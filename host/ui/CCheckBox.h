// A box that is ticked or not.
#pragma once

#include "host/ui/CWnd.h"

class CCheckBox : public CWnd {
 public:
  CCheckBox(CFormWnd& form, CString caption) : CWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::checkBox; }

  bool GetCheck() const { return m_checked; }
  void SetCheck(bool checked) {
    m_checked = checked;
    Notify(UiChange::Kind::content);
  }

  UiOutcome UserCheck(bool checked) {
    UiOutcome outcome = BeginUserEvent();
    if (!outcome) return outcome;
    SetCheck(checked);
    Clicked();
    return {};
  }

  UiSignal<> Clicked;

 private:
  bool m_checked = false;
};
