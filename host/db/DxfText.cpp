#include "host/db/DxfText.h"

#include "host/afx/Encoding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace {

// What a text needs decoding for: escapes, control characters, and zeros.
constexpr std::string_view kSpecial("\\^\0", 3);

std::optional<unsigned> hexNumber(std::string_view digits) {
  unsigned value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
  return value;
}

// \M+nXXXX: the double-byte character XXXX of the code page with the number n.
std::optional<std::wstring> multibyteEscape(char page, std::string_view digits) {
  static constexpr std::array pages{"ANSI_932", "ANSI_950", "ANSI_949", "ANSI_1361", "ANSI_936"};
  if (page < '1' || page > '5') return std::nullopt;
  const auto value = hexNumber(digits);
  const afx::CodePage* codePage = afx::CodePage::Find(pages[static_cast<std::size_t>(page - '1')]);
  if (!value || !codePage) return std::nullopt;
  const char bytes[] = {static_cast<char>(*value >> 8), static_cast<char>(*value & 0xFF)};
  return codePage->Decode(*value > 0xFF ? std::string_view(bytes, 2) : std::string_view(bytes + 1, 1));
}

} // namespace

CString dxf::decodeText(std::string_view value) {
  if (value.find_first_of(kSpecial) == value.npos) return CString(afx::Utf8ToWide(value));
  std::wstring text;
  std::size_t plain = 0;
  const auto flush = [&](std::size_t end) { text += afx::Utf8ToWide(value.substr(plain, end - plain)); };
  for (std::size_t i = 0; i < value.size();) {
    const std::string_view rest = value.substr(i);
    if (rest.size() >= 7 && (rest.starts_with("\\U+") || rest.starts_with("\\u+"))) {
      if (const auto code = hexNumber(rest.substr(3, 4))) {
        flush(i);
        // Two escapes may spell one character above U+FFFF.
        const bool high =
            *code >= 0xD800 && *code < 0xDC00 && rest.size() >= 14 && rest.substr(7, 3) == "\\U+";
        const auto low = high ? hexNumber(rest.substr(10, 4)) : std::nullopt;
        const bool pair = low && *low >= 0xDC00 && *low < 0xE000;
        text += pair ? static_cast<wchar_t>(0x10000 + ((*code - 0xD800) << 10) + (*low - 0xDC00))
                     : static_cast<wchar_t>(*code);
        plain = i += pair ? 14 : 7;
        continue;
      }
    } else if (rest.size() >= 8 && rest.starts_with("\\M+")) {
      if (const auto decoded = multibyteEscape(rest[3], rest.substr(4, 4))) {
        flush(i);
        text += *decoded;
        plain = i += 8;
        continue;
      }
    } else if (rest.size() >= 2 && rest[0] == '^' && (rest[1] == ' ' || (rest[1] >= 'A' && rest[1] <= '_'))) {
      flush(i);
      text += rest[1] == ' ' ? L'^' : static_cast<wchar_t>(rest[1] - '@');
      plain = i += 2;
      continue;
    }
    ++i;
  }
  flush(value.size());
  // A zero would end the text for everybody who takes it as one that ends in a zero.
  std::replace(text.begin(), text.end(), L'\0', static_cast<wchar_t>(0xFFFD));
  return CString(text);
}

std::string dxf::encodeText(const CString& text) {
  const std::wstring_view view = text.View();
  std::wstring escaped;
  escaped.reserve(view.size());
  for (const wchar_t c : view) {
    // Behind half a double-byte character an escape would be taken for the other half; a control character
    // never is.
    const bool isBehindHalf = !escaped.empty() && escaped.back() >= 0xDC80 && escaped.back() <= 0xDCFF;
    if (c == L'^') {
      escaped += L"^ ";
    } else if (c >= 0 && c < 0x20 && (!isBehindHalf || c == L'\n' || c == L'\r')) {
      escaped += L'^';
      escaped += static_cast<wchar_t>(c + '@');
    } else {
      escaped += c;
    }
  }
  return afx::WideToUtf8(escaped);
}
