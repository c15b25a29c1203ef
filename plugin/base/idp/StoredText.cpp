// Conversion between callers' wide text and the stored form. The stored form is always well made, because
// only this file and the reader, which has checked its input, produce it.
#include "plugin/base/idp/StoredText.h"

namespace idp {

char* PutCodePoint(char* out, char32_t c) {
  if (c < 0x80) {
    *out++ = static_cast<char>(c);
  } else if (c < 0x800) {
    *out++ = static_cast<char>(0xC0 | (c >> 6));
    *out++ = static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    *out++ = static_cast<char>(0xE0 | (c >> 12));
    *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    *out++ = static_cast<char>(0x80 | (c & 0x3F));
  } else {
    *out++ = static_cast<char>(0xF0 | (c >> 18));
    *out++ = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    *out++ = static_cast<char>(0x80 | (c & 0x3F));
  }
  return out;
}

StoredText::StoredText(std::wstring_view text) {
  char* begin = m_short;
  if (text.size() * 4 > sizeof m_short) {
    m_long.resize(text.size() * 4);
    begin = m_long.data();
  }
  char* out = begin;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = static_cast<char32_t>(text[i]);
    if (c > 0x10FFFF) c = 0xFFFD;
    if (IsHighSurrogate(c) && i + 1 < text.size()) {
      const char32_t next = static_cast<char32_t>(text[i + 1]);
      if (IsLowSurrogate(next)) {
        c = JoinSurrogates(c, next);
        ++i;
      }
    }
    out = PutCodePoint(out, c);
  }
  m_data = begin;
  m_size = static_cast<std::size_t>(out - begin);
}

CString FromStoredText(std::string_view stored) {
  std::wstring text(stored.size(), L'\0');
  wchar_t* out = text.data();
  for (std::size_t i = 0; i < stored.size();) {
    const auto byte = [&](std::size_t k) {
      return static_cast<char32_t>(static_cast<unsigned char>(stored[i + k]));
    };
    const char32_t lead = byte(0);
    if (lead < 0x80) {
      *out++ = static_cast<wchar_t>(lead);
      i += 1;
    } else if (lead < 0xE0) {
      *out++ = static_cast<wchar_t>((lead & 0x1F) << 6 | (byte(1) & 0x3F));
      i += 2;
    } else if (lead < 0xF0) {
      *out++ = static_cast<wchar_t>((lead & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F));
      i += 3;
    } else {
      *out++ = static_cast<wchar_t>((lead & 0x07) << 18 | (byte(1) & 0x3F) << 12 | (byte(2) & 0x3F) << 6 |
                                    (byte(3) & 0x3F));
      i += 4;
    }
  }
  text.resize(static_cast<std::size_t>(out - text.data()));
  return CString(std::move(text));
}

} // namespace idp
