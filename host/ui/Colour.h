// Colours of cells and texts, 8 bits each of red, green and blue; red stands lowest.
#pragma once

#include <cstdint>

using COLORREF = std::uint32_t;

constexpr COLORREF RGB(unsigned red, unsigned green, unsigned blue) {
  return (red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16;
}
constexpr unsigned GetRValue(COLORREF colour) {
  return colour & 0xFF;
}
constexpr unsigned GetGValue(COLORREF colour) {
  return colour >> 8 & 0xFF;
}
constexpr unsigned GetBValue(COLORREF colour) {
  return colour >> 16 & 0xFF;
}
