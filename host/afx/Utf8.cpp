#include <cstdint>

#include "host/afx/AsciiPrefix.h"
#include "host/afx/Encoding.h"

namespace afx {
namespace {

constexpr wchar_t kReplacement = 0xFFFD;

// The length of the well-formed sequence at the start of the bytes and its character; 0 for none.
int TakeCharacter(const unsigned char* at, std::size_t left, wchar_t& character) {
  const unsigned lead = at[0];
  int length = 0;
  unsigned smallest = 0;
  unsigned value = 0;
  if (lead < 0x80) {
    character = static_cast<wchar_t>(lead);
    return 1;
  } else if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2, smallest = 0x80, value = lead & 0x1F;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3, smallest = 0x800, value = lead & 0x0F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4, smallest = 0x10000, value = lead & 0x07;
  }
  if (length == 0 || left < static_cast<std::size_t>(length)) return 0;
  for (int i = 1; i < length; ++i) {
    if ((at[i] & 0xC0) != 0x80) return 0;
    value = value << 6 | (at[i] & 0x3Fu);
  }
  if (value < smallest || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) return 0;
  character = static_cast<wchar_t>(value);
  return length;
}

void AppendCharacter(std::uint32_t character, std::string& out) {
  const auto put = [&out](std::uint32_t byte) { out += static_cast<char>(byte); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | character >> 6);
    put(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    put(0xE0 | character >> 12);
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
  } else {
    put(0xF0 | character >> 18);
    put(0x80 | (character >> 12 & 0x3F));
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
  }
}

} // namespace

std::wstring Utf8ToWide(std::string_view utf8) {
  const std::size_t plain = AsciiPrefix(utf8);
  std::wstring text;
  text.reserve(utf8.size());
  text.append(utf8.begin(), utf8.begin() + static_cast<std::ptrdiff_t>(plain));
  const auto* bytes = reinterpret_cast<const unsigned char*>(utf8.data());
  for (std::size_t i = plain; i < utf8.size();) {
    if (bytes[i] < 0x80) {
      text += static_cast<wchar_t>(bytes[i++]);
      continue;
    }
    wchar_t character = 0;
    const int length = TakeCharacter(bytes + i, utf8.size() - i, character);
    text += length > 0 ? character : static_cast<wchar_t>(0xDC00 + bytes[i]);
    i += length > 0 ? static_cast<std::size_t>(length) : 1;
  }
  return text;
}

std::string WideToUtf8(std::wstring_view text) {
  const std::size_t plain = AsciiPrefix(text);
  std::string utf8;
  utf8.reserve(plain + (text.size() - plain) * 3);
  utf8.append(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(plain));
  for (std::size_t i = plain; i < text.size(); ++i) {
    const auto character = static_cast<std::uint32_t>(text[i]);
    if (character < 0xD800 || (character > 0xDFFF && character <= 0x10FFFF)) {
      AppendCharacter(character, utf8);
      continue;
    }
    const auto next = i + 1 < text.size() ? static_cast<std::uint32_t>(text[i + 1]) : 0;
    if (character >= 0xD800 && character <= 0xDBFF && next >= 0xDC00 && next <= 0xDFFF) {
      AppendCharacter(0x10000 + ((character - 0xD800) << 10) + (next - 0xDC00), utf8);
      ++i;
    } else if (character >= 0xDC80 && character <= 0xDCFF) {
      utf8 += static_cast<char>(character - 0xDC00);
    } else {
      AppendCharacter(kReplacement, utf8);
    }
  }
  return utf8;
}

bool IsUtf8(std::string_view bytes) {
  const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
  const auto* end = at + bytes.size();
  wchar_t character = 0;
  while (at != end) {
    const int length = TakeCharacter(at, static_cast<std::size_t>(end - at), character);
    if (length == 0) return false;
    at += length;
  }
  return true;
}

} // namespace afx
