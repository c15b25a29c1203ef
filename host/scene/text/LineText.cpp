#include "host/scene/text/LineText.h"

#include <algorithm>

namespace scene {
namespace {

struct Sign {
  wchar_t code;
  wchar_t sign;
};
constexpr Sign kSigns[] = {{L'c', 0x00D8}, {L'd', 0x00B0}, {L'p', 0x00B1}, {L'%', L'%'}};

wchar_t small(wchar_t c) {
  return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c;
}

bool isDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}

} // namespace

wchar_t SignOf(wchar_t code) {
  const auto* found = std::find_if(std::begin(kSigns), std::end(kSigns),
                                   [&](const Sign& s) { return s.code == small(code); });
  return found == std::end(kSigns) ? L'\0' : found->sign;
}

std::vector<TextSpan> ParseLineText(std::wstring_view text) {
  std::vector<TextSpan> spans;
  TextSpan span;
  const auto flush = [&] {
    if (!span.text.empty()) spans.push_back(span);
    span.text.clear();
  };
  const auto toggle = [&](bool& flag) {
    flush();
    flag = !flag;
  };
  for (std::size_t i = 0; i < text.size();) {
    if (i + 2 >= text.size() || text[i] != L'%' || text[i + 1] != L'%') {
      if (text[i] >= L' ') span.text += text[i]; // control characters have no picture
      ++i;
      continue;
    }
    const wchar_t code = small(text[i + 2]);
    const wchar_t sign = SignOf(code);
    i += 3;
    if (sign != 0) {
      span.text += sign;
    } else if (code == L'u') {
      toggle(span.underlined);
    } else if (code == L'o') {
      toggle(span.overlined);
    } else if (code == L'k') {
      toggle(span.struck);
    } else if (isDigit(code)) {
      int number = code - L'0';
      for (int digits = 1; digits < 3 && i < text.size() && isDigit(text[i]); ++digits, ++i)
        number = number * 10 + (text[i] - L'0');
      if (number >= 32) span.text += static_cast<wchar_t>(number);
    } else {
      span.text += text.substr(i - 3, 3);
    }
  }
  flush();
  return spans;
}

} // namespace scene
