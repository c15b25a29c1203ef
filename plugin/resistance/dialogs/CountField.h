// A field for how many there are, with a button that steps by one and not below 0. It takes whole numbers
// alone.
#pragma once

#include "host/ui/CNumberEdit.h"

namespace resistance {

class CountField : public CNumberEdit {
 public:
  CountField(CFormWnd& form, const CString& caption) : CNumberEdit(form, caption, kSpin) {}

  int GetCount() const;
  void SetCount(int count);

 protected:
  UiOutcome CheckTyped(const CString& text) const override;

 private:
  static constexpr Spin kSpin{1, 0, 0};
};

} // namespace resistance
