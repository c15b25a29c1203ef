// A text that the user can't change; its caption is the text.
#pragma once

#include "host/ui/CWnd.h"

class CStatic : public CWnd {
 public:
  explicit CStatic(CFormWnd& form, CString text = {}) : CWnd(form, std::move(text)) {}
  UiKind Kind() const override { return UiKind::label; }
};
