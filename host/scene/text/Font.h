// What a text is written with, as the drawing names it.
#pragma once

#include "host/afx/CString.h"

namespace scene {

struct Font {
  CString file;    // "txt.shx", "simsun.ttc", as the text style has it; may be empty
  CString bigFile; // the file for Chinese characters beside a stroke font, or empty
  CString family;  // a family's name where the drawing tells one
  bool bold = false;
  bool italic = false;
  bool vertical = false; // characters stand below one another

  // Written with strokes and not with outlines; a Chinese character is then as high as a capital.
  bool isStroked() const;
  bool operator==(const Font&) const = default;
};

} // namespace scene

template <> struct std::hash<scene::Font> { std::size_t operator()(const scene::Font& font) const noexcept; };
