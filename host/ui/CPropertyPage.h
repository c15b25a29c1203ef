// A page of a tab sheet: its caption is the text of its tab.
#pragma once

#include "host/ui/CFormWnd.h"

class CPropertyPage : public CFormWnd {
 public:
  // On the sheet's form; the sheet must be told of it with AddPage.
  CPropertyPage(CFormWnd& form, CString caption) : CFormWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::page; }
};
