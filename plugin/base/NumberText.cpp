#include "plugin/base/NumberText.h"

#include "host/afx/Numbers.h"

namespace ZP {

CString ftoa(double value, int digits, bool trim) {
  return CString(afx::FixedDouble(value, digits, trim));
}

CString itoa(int value) {
  return CString(std::to_wstring(value));
}

double GetCStringRightNumber(const CString& text) {
  const std::wstring_view all = text.View();
  const auto isDigit = [&](std::size_t i) { return all[i] >= L'0' && all[i] <= L'9'; };
  if (all.empty() || !isDigit(all.size() - 1)) return 0.0;
  std::size_t start = all.size();
  while (start > 0 && isDigit(start - 1)) --start;
  if (start > 0 && all[start - 1] == L'.') {
    --start;
    while (start > 0 && isDigit(start - 1)) --start;
  }
  return afx::wcstod(text.GetString() + start, nullptr);
}

} // namespace ZP
