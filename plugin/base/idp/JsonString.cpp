// A surrogate without its partner stands in the file as its escape, \ud83d, which JSON allows; in the stored
// form it is the three bytes ED A0-BF xx, which no UTF-8 contains.
#include "plugin/base/idp/JsonString.h"

#include <array>

#include "plugin/base/idp/StoredText.h"

namespace idp {

namespace {

constexpr char kHexDigits[] = "0123456789abcdef";

// Four hexadecimal digits; a value above 0xFFFF means that they are not.
char32_t ReadHex(const char* at) {
  char32_t value = 0;
  for (int i = 0; i < 4; ++i) {
    const char c = at[i];
    if (c >= '0' && c <= '9')
      value = value << 4 | static_cast<char32_t>(c - '0');
    else if (c >= 'a' && c <= 'f')
      value = value << 4 | static_cast<char32_t>(c - 'a' + 10);
    else if (c >= 'A' && c <= 'F')
      value = value << 4 | static_cast<char32_t>(c - 'A' + 10);
    else
      return 0x110000;
  }
  return value;
}

// The character that a one-letter escape means, or 0.
char Unescaped(char letter) {
  switch (letter) {
  case '"':
  case '\\':
  case '/':
    return letter;
  case 'b':
    return '\b';
  case 'f':
    return '\f';
  case 'n':
    return '\n';
  case 'r':
    return '\r';
  case 't':
    return '\t';
  default:
    return 0;
  }
}

// Which bytes need a second look when a string is written: control characters, quote, backslash, and the
// first byte of an encoded surrogate, which is also that of U+D000 to U+D7FF.
constexpr std::array<bool, 256> kSpecial = [] {
  std::array<bool, 256> special{};
  for (unsigned i = 0; i < 0x20; ++i) special[i] = true;
  special['"'] = special['\\'] = special[0xED] = true;
  return special;
}();

void AppendHexEscape(std::string& out, unsigned unit) {
  const char escape[] = {'\\',
                         'u',
                         kHexDigits[unit >> 12 & 15],
                         kHexDigits[unit >> 8 & 15],
                         kHexDigits[unit >> 4 & 15],
                         kHexDigits[unit & 15]};
  out.append(escape, sizeof escape);
}

} // namespace

bool JsonString::Decode(const char* raw, std::string_view& stored) {
  const char* at = raw;
  while (*at != '"' && *at != '\\') ++at;
  if (*at == '\\') return DecodeEscaped(raw, at, stored);
  stored = {raw, static_cast<std::size_t>(at - raw)};
  return true;
}

bool JsonString::DecodeEscaped(const char* raw, const char* firstEscape, std::string_view& stored) {
  m_buffer.assign(raw, firstEscape);
  for (const char* at = firstEscape; *at != '"';) {
    if (*at != '\\') {
      m_buffer += *at++;
      continue;
    }
    if (at[1] != 'u') {
      const char c = Unescaped(at[1]);
      if (c == 0) return false;
      m_buffer += c;
      at += 2;
      continue;
    }
    char32_t unit = ReadHex(at + 2);
    if (unit > 0xFFFF) return false;
    at += 6;
    if (IsHighSurrogate(unit) && at[0] == '\\' && at[1] == 'u') {
      const char32_t low = ReadHex(at + 2);
      if (low > 0xFFFF) return false;
      if (IsLowSurrogate(low)) {
        unit = JoinSurrogates(unit, low);
        at += 6;
      }
    }
    char encoded[4];
    m_buffer.append(encoded, PutCodePoint(encoded, unit));
  }
  stored = m_buffer;
  return true;
}

void AppendJsonString(std::string& out, std::string_view stored) {
  out += '"';
  std::size_t copied = 0;
  for (std::size_t at = 0; at < stored.size(); ++at) {
    const auto c = static_cast<unsigned char>(stored[at]);
    if (!kSpecial[c]) continue;
    const auto second = c == 0xED ? static_cast<unsigned char>(stored[at + 1]) : 0;
    if (c == 0xED && second < 0xA0) continue;
    out.append(stored, copied, at - copied);
    if (c == 0xED) {
      AppendHexEscape(out,
                      0xD000u | (second & 0x3Fu) << 6 | (static_cast<unsigned char>(stored[at + 2]) & 0x3Fu));
      at += 2;
    } else if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c == '\n') {
      out += "\\n";
    } else {
      AppendHexEscape(out, c);
    }
    copied = at + 1;
  }
  out.append(stored, copied);
  out += '"';
}

} // namespace idp
