// How wide texts are. The scene aligns and wraps texts with this; whoever paints them gives the measures of
// the fonts that it paints with, so that both agree.
#pragma once

#include "host/scene/text/Font.h"

#include <string_view>

namespace scene {

class TextMetrics {
 public:
  virtual ~TextMetrics() = default;
  // How far a text moves the pen, for capitals of height 1.
  virtual double advance(const Font& font, std::wstring_view text) const = 0;
};

// Measures without fonts: full-width characters are as wide as they are high, others 0.7 of it.
class EstimatedMetrics : public TextMetrics {
 public:
  double advance(const Font& font, std::wstring_view text) const override;
};

// Whether a character is drawn as wide as high: Chinese, Japanese, Korean and their punctuation.
bool IsFullWidth(wchar_t c);

} // namespace scene
