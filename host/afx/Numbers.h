// Reading and printing numbers, the same in every locale. For formatted texts use CString::Format, for the
// number texts of the catalogues ZP::ftoa, which stands on these.
#pragma once

#include <string>

// The number that a text begins with, after leading blanks; 0 when there is none. Null counts as no text.
double _wtof(const wchar_t* text);
// As above for whole numbers; beyond the range of int the nearest end of the range.
int _wtoi(const wchar_t* text);

namespace afx {

// The longest valid prefix: blanks, a sign, digits with at most one point, and an exponent when it is
// complete. Hexadecimal numbers and the words inf and nan are no numbers: typed into a field they give 0, as
// in the C library that the rules of the catalogues come from. Beyond the range of double: infinity, or 0 for
// too small. end, when given, is set behind the number, or to the text itself when there is none.
double wcstod(const wchar_t* text, const wchar_t** end);

// The shortest text that reads back to exactly this value, always with a point or an exponent: "20.0",
// "1e+22",
// "-0.0". Not finite: "nan", "inf", "-inf".
std::string ShortestDouble(double value);

// Fixed-point text rounded to 0-1100 decimals (digits is cut to that). The exact binary value is rounded,
// ties away from zero. With trim, trailing zeros go, and the point with nothing behind it. Zero never has a
// sign. Not finite: "nan", "inf", "-inf".
std::wstring FixedDouble(double value, int digits, bool trim);

} // namespace afx
