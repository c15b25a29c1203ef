// The form in which the tree keeps its texts: UTF-8, with a surrogate that has no partner as the three bytes
// that UTF-8 would give it. So every text of a caller comes back as it went in. A pair of surrogates
// becomes the one character that it means; what is no code point at all becomes U+FFFD.
#pragma once

#include <string>
#include <string_view>

#include "host/afx/CString.h"

namespace idp {

// Gives the stored form of a caller's text; short ones need no memory.
class StoredText {
 public:
  explicit StoredText(std::wstring_view text);
  StoredText(const StoredText&) = delete;
  StoredText& operator=(const StoredText&) = delete;
  operator std::string_view() const { return {m_data, m_size}; }

 private:
  char m_short[64];
  std::string m_long;
  const char* m_data;
  std::size_t m_size;
};

CString FromStoredText(std::string_view stored);

// Writes one code point, a surrogate included, and returns the end: one to four bytes.
char* PutCodePoint(char* out, char32_t codePoint);

constexpr bool IsHighSurrogate(char32_t c) {
  return c >= 0xD800 && c < 0xDC00;
}
constexpr bool IsLowSurrogate(char32_t c) {
  return c >= 0xDC00 && c < 0xE000;
}
constexpr char32_t JoinSurrogates(char32_t high, char32_t low) {
  return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

} // namespace idp
