// A table to look something up in: it has a title, is not edited, and the user chooses a cell.
#pragma once

#include "host/ui/CTableWnd.h"

class CReportCtrl : public CTableWnd {
 public:
  CReportCtrl(CFormWnd& form, CString title) : CTableWnd(form, std::move(title)) { SetEditable(false); }

  // The text of the selected cell. 1, or 0 with an empty text when none is selected.
  int GetSelData(CString& text) const {
    const bool any = GetFocusRow() >= 0;
    text = any ? GetItemText(GetFocusRow(), GetFocusColumn()) : CString();
    return any ? 1 : 0;
  }
  // The size of all columns and rows together, pixels; a row without a height counts as high as a text.
  int GetTotalWidth() const;
  int GetTotalHeight() const;
};
