// The palette is a rule and not a list: ten named colours, then a wheel of 24 hues at steps of 15 degrees,
// each in five brightnesses full and half saturated, then six greys. The rule is the one that handbooks of
// the DXF format print as a table of 255 rows; values are cut, not rounded, as those tables have them.
#include "host/scene/Palette.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace scene {
namespace {

constexpr Rgb kNamed[] = {{0, 0, 0},   {255, 0, 0},   {255, 255, 0},   {0, 255, 0},     {0, 255, 255},
                          {0, 0, 255}, {255, 0, 255}, {255, 255, 255}, {128, 128, 128}, {192, 192, 192}};
constexpr int kFirstOfWheel = 10;
constexpr int kFirstGrey = 250;
constexpr double kBrightness[] = {1.0, 0.65, 0.5, 0.3, 0.15};
constexpr double kDarkestGrey = 0.2;
constexpr double kGreyStep = 0.16;

std::uint8_t cut(double share) {
  return static_cast<std::uint8_t>(255 * share + 1e-9);
}

// How much of a primary colour a hue has, by its distance on the wheel in sixths of a turn: all within one
// sixth, none beyond two.
double share(double hue, double primary) {
  double distance = std::fabs(hue - primary);
  distance = std::min(distance, 6 - distance);
  return std::clamp(2 - distance, 0.0, 1.0);
}

Rgb onWheel(int index) {
  const double hue = (index - kFirstOfWheel) / 10 / 4.0; // four steps of 15 degrees in a sixth of a turn
  const double bright = kBrightness[index % 10 / 2];
  const double least = index % 2 == 1 ? bright / 2 : 0;
  const auto part = [&](double primary) { return cut(least + (bright - least) * share(hue, primary)); };
  return {part(0), part(2), part(4)};
}

std::array<Rgb, 256> makeTable() {
  std::array<Rgb, 256> table{};
  for (int i = 1; i < 256; ++i) {
    const auto grey = cut(kDarkestGrey + kGreyStep * (i - kFirstGrey));
    table[static_cast<std::size_t>(i)] = i < kFirstOfWheel ? kNamed[i]
                                         : i < kFirstGrey  ? onWheel(i)
                                                           : Rgb{grey, grey, grey};
  }
  return table;
}

} // namespace

Rgb PaletteColor(int index) {
  static const std::array<Rgb, 256> table = makeTable();
  return index >= 1 && index <= 255 ? table[static_cast<std::size_t>(index)] : Rgb{};
}

} // namespace scene
