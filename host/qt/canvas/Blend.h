// Mixing of colours in the pixels of an image, format RGB32.
#pragma once

#include <cstdint>

namespace desktop {

// alpha of 256 is all of the new colour.
inline void Blend(std::uint32_t& pixel, std::uint32_t color, unsigned alpha) {
  constexpr std::uint32_t kRedBlue = 0xFF00FF; // two at once
  constexpr std::uint32_t kGreen = 0x00FF00;
  std::uint32_t rb = pixel & kRedBlue;
  std::uint32_t g = pixel & kGreen;
  rb += (((color & kRedBlue) - rb) * alpha) >> 8;
  g += (((color & kGreen) - g) * alpha) >> 8;
  pixel = 0xFF000000 | (rb & kRedBlue) | (g & kGreen);
}

} // namespace desktop
