// A list of rows under column titles, of which one is selected as a whole and whose cells can be edited in
// place.
#pragma once

#include "host/ui/CTableWnd.h"

class CEditListCtrl : public CTableWnd {
 public:
  CEditListCtrl(CFormWnd& form, CString caption) : CTableWnd(form, std::move(caption)) {
    SetSelectsRows(true);
  }

  // The selected row; -1 for none.
  int GetCurSel() const { return GetFocusRow(); }
  // Its data; null for none.
  void* SelectedData() const { return GetCurSel() < 0 ? nullptr : GetRowData(GetCurSel()); }
  // The first row of that data, or -1.
  int FindData(const void* data) const {
    for (int row = 0; row < GetRowCount(); ++row)
      if (GetRowData(row) == data) return row;
    return -1;
  }
};
