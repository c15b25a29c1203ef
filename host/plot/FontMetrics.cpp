#include "host/plot/FontMetrics.h"

#include <pango/pangocairo.h>

#include <unordered_map>

namespace plot {

// Texts are many and characters few, so characters are measured.
struct FontMetrics::Cache {
  FontLayouts layouts{nullptr};
  std::unordered_map<scene::Font, std::unordered_map<wchar_t, double>> advances;

  double measure(const scene::Font& font, wchar_t c) {
    int width = 0;
    pango_layout_get_size(layouts.layout(font, std::wstring_view(&c, 1)), &width, nullptr);
    return static_cast<double>(width) / PANGO_SCALE / layouts.capHeight(font);
  }
};

FontMetrics::FontMetrics() : m_cache(std::make_unique<Cache>()) {}
FontMetrics::~FontMetrics() = default;

double FontMetrics::advance(const scene::Font& font, std::wstring_view text) const {
  auto& known = m_cache->advances[font];
  double sum = 0;
  for (const wchar_t c : text) {
    const auto [found, isNew] = known.try_emplace(c);
    if (isNew) found->second = m_cache->measure(font, c);
    sum += found->second;
  }
  return sum;
}

} // namespace plot
