#include "host/ui/CNumberEdit.h"

#include "host/afx/Numbers.h"

#include <algorithm>

namespace {

// Sign, digits with at most one point, exponent; each may be missing, since typing begins with nothing.
bool MayBeNumber(std::wstring_view text) {
  std::size_t at = 0;
  const auto sign = [&] {
    if (at < text.size() && (text[at] == L'+' || text[at] == L'-')) ++at;
  };
  const auto digits = [&] {
    while (at < text.size() && text[at] >= L'0' && text[at] <= L'9') ++at;
  };
  sign();
  digits();
  if (at < text.size() && text[at] == L'.') ++at;
  digits();
  if (at < text.size() && (text[at] == L'e' || text[at] == L'E')) {
    ++at;
    sign();
    digits();
  }
  return at == text.size();
}

} // namespace

double CNumberEdit::GetValue() const {
  return afx::wcstod(GetText(), nullptr);
}

void CNumberEdit::SetValue(double value, int decimals, bool trim) {
  SetText(CString(afx::FixedDouble(value, decimals, trim)));
}

UiOutcome CNumberEdit::CheckTyped(const CString& text) const {
  if (MayBeNumber(CString(text).Trim().View())) return {};
  return {L"“" + GetCaption() + L"”只接受数字。", L"一个数，如 12.5"};
}

UiOutcome CNumberEdit::UserStep(int steps) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (!m_spin) return {L"“" + GetCaption() + L"”没有微调按钮。", L"set"};
  if (IsReadOnly()) return {L"“" + GetCaption() + L"”是只读的。", L"一个可以修改的控件"};
  const double value = std::max(GetValue() + steps * m_spin->step, m_spin->floor);
  ChangeByUser(CString(afx::FixedDouble(value, m_spin->decimals, true)));
  return {};
}
