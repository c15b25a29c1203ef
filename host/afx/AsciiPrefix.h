// How far a text is plain ASCII, eight bytes at a step. Nearly all text of drawings is, so that conversions
// copy that part as it stands.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace afx {

inline std::size_t AsciiPrefix(std::string_view bytes) {
  std::size_t length = 0;
  for (; length + 8 <= bytes.size(); length += 8) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, bytes.data() + length, sizeof eight);
    if (eight & 0x8080808080808080u) break;
  }
  while (length < bytes.size() && static_cast<unsigned char>(bytes[length]) < 0x80) ++length;
  return length;
}

inline std::size_t AsciiPrefix(std::wstring_view text) {
  std::size_t length = 0;
  while (length < text.size() && static_cast<std::uint32_t>(text[length]) < 0x80) ++length;
  return length;
}

} // namespace afx
