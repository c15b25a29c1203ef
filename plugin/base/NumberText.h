// Numbers as the catalogues and dialogs write them, the same in every locale.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// Fixed-point text with digits decimals (0 to 1100; outside of it the nearest). The exact value is rounded,
// ties away from zero. With trim, trailing zeros go, and a point with nothing behind it: 20, 0.5. Zero has no
// sign. Not finite: "nan", "inf", "-inf".
ZP_EXPORT CString ftoa(double value, int digits, bool trim);

ZP_EXPORT CString itoa(int value);

// The number that ends the text: 20 for "DN20", 20.5 for "DN20.5"; 0 for "20mm" and "". It is the longest
// ending of ASCII digits with at most one point, and its last character is a digit: 2.3 for "1.2.3", 0.5 for
// "A.5", 0 for "20." and "20 ". A sign is a separator and never part of it: 25 for "PPR-25", 5 for "1e-5".
ZP_EXPORT double GetCStringRightNumber(const CString& text);

} // namespace ZP
