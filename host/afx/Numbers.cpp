#include "host/afx/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

const wchar_t* SkipBlanks(const wchar_t* at) {
  while (*at == L' ' || (*at >= L'\t' && *at <= L'\r')) ++at;
  return at;
}

bool IsDigit(wchar_t character) {
  return character >= L'0' && character <= L'9';
}

const wchar_t* SkipDigits(const wchar_t* at) {
  while (IsDigit(*at)) ++at;
  return at;
}

// Behind the number that starts here without a sign, or at itself when there is none.
const wchar_t* NumberEnd(const wchar_t* at) {
  const wchar_t* end = SkipDigits(at);
  bool hasDigits = end != at;
  if (*end == L'.') {
    const wchar_t* fraction = SkipDigits(end + 1);
    hasDigits = hasDigits || fraction != end + 1;
    end = fraction;
  }
  if (!hasDigits) return at;
  if (*end == L'e' || *end == L'E') {
    const wchar_t* exponent = end + 1;
    if (*exponent == L'+' || *exponent == L'-') ++exponent;
    if (IsDigit(*exponent)) end = SkipDigits(exponent);
  }
  return end;
}

// Whether digits out of the range of double are too large rather than too small.
bool IsHuge(const std::string& digits) {
  const std::size_t mark = std::min(digits.find_first_of("eE"), digits.size());
  const std::size_t point = std::min(digits.find('.'), mark);
  const std::size_t first = digits.find_first_of("123456789");
  const long long whole = static_cast<long long>(point) - static_cast<long long>(first);
  long long exponent = 0;
  if (mark < digits.size()) {
    const bool negative = digits[mark + 1] == '-';
    for (const char digit : digits.substr(mark + 1))
      if (digit >= '0' && digit <= '9' && exponent < 1'000'000'000'000)
        exponent = exponent * 10 + (digit - '0');
    if (negative) exponent = -exponent;
  }
  return whole + exponent > 0;
}

} // namespace

double _wtof(const wchar_t* text) {
  return afx::wcstod(text, nullptr);
}

int _wtoi(const wchar_t* text) {
  if (!text) return 0;
  const wchar_t* at = SkipBlanks(text);
  const bool negative = *at == L'-';
  if (*at == L'-' || *at == L'+') ++at;
  const long long limit = negative ? -static_cast<long long>(std::numeric_limits<int>::min())
                                   : static_cast<long long>(std::numeric_limits<int>::max());
  long long value = 0;
  for (; IsDigit(*at); ++at) value = std::min(value * 10 + (*at - L'0'), limit);
  return static_cast<int>(negative ? -value : value);
}

namespace afx {

double wcstod(const wchar_t* text, const wchar_t** end) {
  if (end) *end = text;
  if (!text) return 0;
  const wchar_t* at = SkipBlanks(text);
  const bool negative = *at == L'-';
  if (*at == L'-' || *at == L'+') ++at;
  const wchar_t* behind = NumberEnd(at);
  if (behind == at) return 0;
  if (end) *end = behind;

  std::string digits;
  digits.reserve(static_cast<std::size_t>(behind - at));
  for (; at != behind; ++at) digits += static_cast<char>(*at);
  double value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (result.ec == std::errc::result_out_of_range)
    value = IsHuge(digits) ? std::numeric_limits<double>::infinity() : 0;
  return negative ? -value : value;
}

std::string ShortestDouble(double value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  std::string text(buffer, result.ptr);
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

std::wstring FixedDouble(double value, int digits, bool trim) {
  if (std::isnan(value)) return L"nan";
  if (std::isinf(value)) return value < 0 ? L"-inf" : L"inf";
  digits = std::clamp(digits, 0, 1100);

  // std::to_chars rounds the exact value but takes ties to even. A tie is a value that one more decimal
  // writes exactly, and only a multiple of 2^-(digits+1) can be one; there the last decimal is rounded by
  // hand.
  const double magnitude = std::fabs(value);
  const double scaled = std::ldexp(magnitude, digits + 1);
  const bool mayTie = scaled == std::floor(scaled);
  std::string text(static_cast<std::size_t>(digits) + 320, '\0');
  const auto result = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                    std::chars_format::fixed, mayTie ? digits + 1 : digits);
  text.resize(static_cast<std::size_t>(result.ptr - text.data()));
  if (mayTie) {
    const bool up = text.back() >= '5';
    text.pop_back();
    if (text.back() == '.') text.pop_back();
    auto at = text.rbegin();
    for (bool carry = up; carry; ++at) {
      if (at == text.rend()) {
        text.insert(text.begin(), '1');
        break;
      }
      if (*at == '.') continue;
      carry = *at == '9';
      *at = carry ? '0' : static_cast<char>(*at + 1);
    }
  }

  if (trim && text.find('.') != std::string::npos) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
  }
  const bool isZero = text.find_first_not_of("0.") == std::string::npos;
  std::wstring wide(text.begin(), text.end());
  return value < 0 && !isZero ? L'-' + wide : wide;
}

} // namespace afx
