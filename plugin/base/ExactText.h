// Numbers for fields that are read back as a whole, also where the user has changed nothing.
#pragma once

#include "host/afx/CString.h"
#include "host/afx/Numbers.h"

namespace ZP {

// The shortest text that reads back as the same number, without a point where none is needed: "0.2", "80",
// "1e-07". Not finite: "nan", "inf", "-inf", which read as 0.
inline CString ExactText(double value) {
  const CString text = CString::FromUtf8(afx::ShortestDouble(value));
  return text.View().ends_with(L".0") ? text.Left(text.GetLength() - 2) : text;
}

} // namespace ZP
