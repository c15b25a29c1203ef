#include "plugin/resistance/dialogs/CountField.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"

namespace resistance {

int CountField::GetCount() const {
  return _wtoi(GetText());
}

void CountField::SetCount(int count) {
  SetText(ZP::itoa(count));
}

UiOutcome CountField::CheckTyped(const CString& text) const {
  const UiOutcome refusal(L"“" + GetCaption() + L"”只接受整数。", L"一个整数，如 2");
  const CString typed = CString(text).Trim();
  const std::wstring_view digits = typed.View().substr(typed.FindOneOf(L"+-") == 0 ? 1 : 0);
  const bool whole =
      std::all_of(digits.begin(), digits.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
  const bool fits = std::fabs(afx::wcstod(typed, nullptr)) <= std::numeric_limits<int>::max();
  return whole && fits ? UiOutcome() : refusal;
}

} // namespace resistance
