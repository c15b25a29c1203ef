// A field for a number, with a spin button if it has a step. Its value is the longest number that its text
// begins with, 0 for none.
#pragma once

#include "host/ui/CEdit.h"

#include <optional>

class CNumberEdit : public CEdit {
 public:
  struct Spin {
    double step = 1;
    double floor = 0; // a step ends here; typed values are not limited
    int decimals = 2; // shown after a step, without trailing zeros
  };

  using CEdit::CEdit;
  CNumberEdit(CFormWnd& form, CString caption, Spin spin) : CEdit(form, std::move(caption)), m_spin(spin) {}
  UiKind Kind() const override { return UiKind::numberEdit; }

  double GetValue() const;
  // trim leaves out zeros at the end of the decimals, and a point with nothing behind it.
  void SetValue(double value, int decimals, bool trim = false);
  const std::optional<Spin>& GetSpin() const { return m_spin; }

  // The spin button: steps up, or down where negative.
  UiOutcome UserStep(int steps);

 protected:
  // Takes what is a number or may become one by typing on.
  UiOutcome CheckTyped(const CString& text) const override;

 private:
  std::optional<Spin> m_spin;
};
