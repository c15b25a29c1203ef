#include "plugins/workbench/Asking.h"

#include "host/ed/EdSession.h"
#include "plugin/base/DefaultValues.h"
#include "plugin/base/NumberText.h"

namespace workbench {
namespace {

constexpr int kRangeDecimals = 5;

CString KeyOf(const CString& name) {
  return L"工作台\\" + name;
}

// Asks until the number lies in the range.
template <typename Value, typename Ask, typename Get>
std::optional<Value> AskInRange(const CString& prompt, Value preset, const Range& range, Ask ask, Get get) {
  while (true) {
    const ed::Answer answer = ask(ed::Question{prompt, {}, 0, {}});
    if (answer.isCancelled()) return std::nullopt;
    if (answer.isNone()) return preset;
    const auto value = get(answer);
    if (value >= range.from && value <= range.to) return static_cast<Value>(value);
    Refuse(L"这个数值不在允许的范围内。", NumberText(range.from, kRangeDecimals) + L" 到 " +
                                              NumberText(range.to, kRangeDecimals) + L" 之间的数值");
  }
}

} // namespace

void Refuse(const CString& reason, const CString& expected) {
  EdSession::instance().refuse(reason, expected);
}

std::optional<double> AskNumber(const CString& subject, double preset, const Range& range) {
  return AskInRange(subject + L" <" + NumberText(preset) + L">:", preset, range, ed::AskReal,
                    [](const ed::Answer& answer) { return answer.real; });
}

std::optional<int> AskInteger(const CString& subject, int preset, const Range& range) {
  return AskInRange(subject + L" <" + ZP::itoa(preset) + L">:", preset, range, ed::AskInteger,
                    [](const ed::Answer& answer) { return answer.integer; });
}

std::optional<CString> AskOptionalText(const CString& subject, const CString& preset) {
  const auto answer = ed::AskText({subject + L"，- 为无 <" + preset + L">:", {}, 0, {}});
  if (answer.isCancelled()) return std::nullopt;
  if (answer.isNone()) return preset;
  const CString text = CString(answer.text).Trim();
  return text == L"-" ? CString() : text;
}

CString NumberText(double value, int decimals) {
  return ZP::ftoa(value, decimals, true);
}

CString Remembered(const CString& name, const CString& preset) {
  CString value = preset;
  ZP::GetDefaultValue(KeyOf(name), value);
  return value;
}

double Remembered(const CString& name, double preset) {
  ZP::GetDefaultValue(KeyOf(name), preset);
  return preset;
}

void Remember(const CString& name, const CString& value) {
  ZP::SetDefaultValue(KeyOf(name), value);
}

void Remember(const CString& name, double value) {
  ZP::SetDefaultValue(KeyOf(name), value);
}

} // namespace workbench
