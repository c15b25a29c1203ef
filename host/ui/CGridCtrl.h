// A grid: fixed heading rows are cells like the others and stand first, all other cells can be edited unless
// they are read-only.
#pragma once

#include "host/ui/CTableWnd.h"

class CGridCtrl : public CTableWnd {
 public:
  CGridCtrl(CFormWnd& form, CString caption) : CTableWnd(form, std::move(caption)) {}

  // Adds the columns with their widths, and one fixed row with the titles.
  struct Heading {
    CString title;
    int width = 0;
  };
  void SetHeading(const std::vector<Heading>& headings);
  // Rows from the top that are fixed.
  int GetFixedRowCount() const;
};
