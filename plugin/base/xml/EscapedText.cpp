#include "plugin/base/xml/EscapedText.h"

#include <algorithm>
#include <charconv>

#include "host/afx/Encoding.h"

namespace xml {

namespace {

bool IsPlainCharacter(wchar_t c) {
  const auto code = static_cast<char32_t>(c);
  if (code < 0x20) return code == '\t' || code == '\n' || code == '\r';
  return code < 0xD800 || (code >= 0xE000 && code < 0xFFFE) || (code >= 0x10000 && code <= 0x10FFFF);
}

} // namespace

bool IsPlain(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(), IsPlainCharacter);
}

std::string Escape(std::wstring_view text) {
  std::wstring escaped;
  for (const wchar_t c : text) {
    if (c == L'\\') {
      escaped += L"\\\\";
    } else if (IsPlainCharacter(c)) {
      escaped += c;
    } else if (static_cast<char32_t>(c) > 0x10FFFF) {
      escaped += L'\xFFFD';
    } else {
      constexpr const wchar_t* kDigits = L"0123456789abcdef";
      escaped += L"\\u";
      for (int shift = 12; shift >= 0; shift -= 4) escaped += kDigits[c >> shift & 0xF];
    }
  }
  return afx::WideToUtf8(escaped);
}

std::optional<CString> Unescape(std::string_view utf8) {
  const std::wstring text = afx::Utf8ToWide(utf8);
  std::wstring plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != L'\\') {
      plain += text[at];
    } else if (text.compare(at + 1, 1, L"\\") == 0) {
      plain += text[++at];
    } else {
      if (text.compare(at + 1, 1, L"u") != 0) return std::nullopt;
      const std::string digits = afx::WideToUtf8(text.substr(at + 2, 4));
      unsigned code = 0;
      const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
      if (digits.size() != 4 || end.ptr != digits.data() + 4) return std::nullopt;
      plain += static_cast<wchar_t>(code);
      at += 5;
    }
  }
  return CString(std::move(plain));
}

} // namespace xml
