#include "plugin/graph/Notice.h"

void notice::Tell(const CString& text) {
  AfxMessageBox(text, kCaption, MB_OK | MB_ICONINFORMATION);
}

bool notice::Confirm(const CString& text) {
  return AfxMessageBox(text, kCaption, MB_OKCANCEL | MB_ICONINFORMATION | MB_DEFBUTTON2) == IDOK;
}

bool notice::Warn(const CString& text) {
  return AfxMessageBox(text, kCaption, MB_OKCANCEL | MB_ICONEXCLAMATION | MB_DEFBUTTON2) == IDOK;
}
