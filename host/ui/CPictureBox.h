// A picture from a file; blank where the file can't be read.
#pragma once

#include "host/ui/CWnd.h"

class CPictureBox : public CWnd {
 public:
  CPictureBox(CFormWnd& form, CString caption) : CWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::picture; }

  const CString& GetPicture() const { return m_file; }
  // The path as the system writes paths; empty for no picture.
  void SetPicture(const CString& file) {
    m_file = file;
    Notify(UiChange::Kind::content);
  }

 private:
  CString m_file;
};
