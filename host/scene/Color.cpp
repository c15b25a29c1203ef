#include "host/scene/Color.h"

#include "host/scene/Palette.h"

namespace scene {

Rgb Color::on(Rgb background) const {
  switch (kind) {
  case Kind::background:
    return background;
  case Kind::foreground: {
    const int brightness = 299 * background.red + 587 * background.green + 114 * background.blue;
    return brightness > 127'000 ? Rgb{0, 0, 0} : Rgb{255, 255, 255};
  }
  case Kind::fixed:
    break;
  }
  return rgb;
}

Color Color::fromIndex(int index) {
  constexpr int kForeground = 7;
  if (index < 1 || index > 255 || index == kForeground) return {};
  return fixed(PaletteColor(index));
}

Color Color::fromTrueColor(long long value) {
  const auto byte = [value](int shift) { return static_cast<std::uint8_t>(value >> shift & 0xFF); };
  return fixed({byte(16), byte(8), byte(0)});
}

} // namespace scene
