// Mixing of colours in the pixels of an image, format RGB32.
#pragma once

#include <cstdint>

namespace desktop {

// The four bytes of a pixel with room for a product each.
constexpr std::uint64_t kSpread = 0x00FF00FF00FF00FF;
inline std::uint64_t Spread(std::uint32_t pixel) {
  return (pixel | static_cast<std::uint64_t>(pixel) << 24) & kSpread;
}

// alpha of 256 is all of the new colour, which comes spread.
inline void Blend(std::uint32_t& pixel, std::uint64_t color, unsigned alpha) {
  const std::uint64_t mixed = (Spread(pixel) * (256 - alpha) + color * alpha) >> 8 & kSpread;
  pixel = static_cast<std::uint32_t>(mixed | mixed >> 24);
}

} // namespace desktop
