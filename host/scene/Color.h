// The colour of something drawn: fixed, or that of the foreground or of the background, which only whoever
// paints knows.
#pragma once

#include <cstdint>

namespace scene {

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Rgb&) const = default;
};

struct Color {
  enum class Kind : std::uint8_t {
    fixed,
    foreground, // index 7: black on a light background, white on a dark one
    background  // what hides others, such as a wipeout
  };
  Rgb rgb;
  Kind kind = Kind::foreground;
  std::uint8_t alpha = 255; // 0 is transparent

  // The colour to paint with on a background.
  Rgb on(Rgb background) const;
  bool operator==(const Color&) const = default;

  static Color fixed(Rgb rgb) { return {rgb, Kind::fixed, 255}; }
  // A palette index of 1 to 255; any other counts as 7.
  static Color fromIndex(int index);
  // 24 bits, as group 420 has them: red is the highest byte.
  static Color fromTrueColor(long long value);
};

} // namespace scene
