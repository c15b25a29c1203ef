#include "host/ed/acedColors.h"

#include "host/scene/Palette.h"

std::uint32_t acedGetRGB(int colorIndex) {
  constexpr int kWhite = 7;
  constexpr int kLast = 255;
  const scene::Rgb rgb = scene::PaletteColor(colorIndex < 1 || colorIndex > kLast ? kWhite : colorIndex);
  return rgb.red | static_cast<std::uint32_t>(rgb.green) << 8 | static_cast<std::uint32_t>(rgb.blue) << 16;
}
