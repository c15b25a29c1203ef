// Round buttons of which one is chosen.
#pragma once

#include "host/ui/CWnd.h"

#include <vector>

class CRadioGroup : public CWnd {
 public:
  CRadioGroup(CFormWnd& form, CString caption, std::vector<CString> options)
      : CWnd(form, std::move(caption)), m_options(std::move(options)) {}
  UiKind Kind() const override { return UiKind::radioGroup; }

  const std::vector<CString>& Options() const { return m_options; }
  int GetCurSel() const { return m_chosen; } // from 0; -1 for none
  // An index that there is not chooses none.
  void SetCurSel(int option);

  UiOutcome UserSelect(int option);

  UiSignal<> Clicked;

 private:
  std::vector<CString> m_options;
  int m_chosen = -1;
};
