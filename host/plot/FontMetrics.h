// The measures of the fonts that plots are written with.
#pragma once

#include "host/scene/text/TextMetrics.h"

#include <memory>

typedef struct _PangoLayout PangoLayout;
typedef struct _cairo cairo_t;

namespace plot {

class FontMetrics : public scene::TextMetrics {
 public:
  FontMetrics();
  ~FontMetrics() override;
  double advance(const scene::Font& font, std::wstring_view text) const override;

 private:
  struct Cache;
  std::unique_ptr<Cache> m_cache;
};

// For the painter: text at kFontSize in which a capital is capHeight high; the base line is at 0, y down.
class FontLayouts {
 public:
  static constexpr double kFontSize = 64;

  explicit FontLayouts(cairo_t* target);
  ~FontLayouts();
  FontLayouts(const FontLayouts&) = delete;
  FontLayouts& operator=(const FontLayouts&) = delete;

  // Valid until the next call.
  PangoLayout* layout(const scene::Font& font, std::wstring_view text);
  double capHeight(const scene::Font& font);

 private:
  struct State;
  std::unique_ptr<State> m_state;
};

} // namespace plot
