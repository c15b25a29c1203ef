// Text to the user's command line. The format is that of CString::Format, so it may come from data.
#pragma once

#include "host/afx/CString.h"

// Prints the text as it is. RTNORM.
int acutPrintText(const CString& text);

template <class... Arguments> int acutPrintf(const wchar_t* format, const Arguments&... arguments) {
  CString text;
  text.Format(format, arguments...);
  return acutPrintText(text);
}
