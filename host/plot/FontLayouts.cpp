// Text of a drawing's font as a Pango layout without kerning, so that a text is as wide as its characters.
#include "host/afx/Encoding.h"
#include "host/plot/FontFamilies.h"
#include "host/plot/FontMetrics.h"

#include <pango/pangocairo.h>

#include <unordered_map>

namespace plot {
namespace {

// Text of a file may hold bytes that are no characters; Pango takes only true UTF-8.
std::string printable(std::wstring_view text) {
  std::wstring clean(text);
  for (wchar_t& c : clean) {
    const auto code = static_cast<unsigned>(c);
    if (code < 0x20 || (code >= 0xD800 && code < 0xE000) || code > 0x10FFFF) c = 0xFFFD;
  }
  return afx::WideToUtf8(clean);
}

} // namespace

struct FontLayouts::State {
  PangoFontMap* map = nullptr;
  PangoContext* context = nullptr;
  PangoLayout* layout = nullptr;
  std::unordered_map<scene::Font, PangoFontDescription*> descriptions;
  std::unordered_map<scene::Font, double> capHeights;

  PangoFontDescription* describe(const scene::Font& font) {
    PangoFontDescription*& found = descriptions[font];
    if (found) return found;
    found = pango_font_description_new();
    pango_font_description_set_family(found, FamiliesOf(font).c_str());
    if (font.bold) pango_font_description_set_weight(found, PANGO_WEIGHT_BOLD);
    if (font.italic) pango_font_description_set_style(found, PANGO_STYLE_ITALIC);
    pango_font_description_set_absolute_size(found, kFontSize * PANGO_SCALE);
    return found;
  }

  void setText(const scene::Font& font, std::wstring_view text, int fullWidthSize) {
    const std::string utf8 = printable(text);
    pango_layout_set_font_description(layout, describe(font));
    pango_layout_set_text(layout, utf8.c_str(), static_cast<int>(utf8.size()));
    PangoAttrList* attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_font_features_new("kern=0,liga=0,clig=0"));
    if (fullWidthSize > 0) shrinkFullWidth(attributes, text, fullWidthSize);
    pango_layout_set_attributes(layout, attributes);
    pango_attr_list_unref(attributes);
  }

  // Beside a stroke font a Chinese character is as high as a capital, not half as high again.
  static void shrinkFullWidth(PangoAttrList* attributes, std::wstring_view text, int size) {
    unsigned at = 0;
    for (const wchar_t c : text) {
      const auto bytes = static_cast<unsigned>(printable(std::wstring_view(&c, 1)).size());
      if (scene::IsFullWidth(c)) {
        PangoAttribute* attribute = pango_attr_size_new_absolute(size);
        attribute->start_index = at;
        attribute->end_index = at + bytes;
        pango_attr_list_insert(attributes, attribute);
      }
      at += bytes;
    }
  }
};

FontLayouts::FontLayouts(cairo_t* target) : m_state(std::make_unique<State>()) {
  // A map of its own: the library's is shared with whatever else the process draws, and never given back.
  m_state->map = pango_cairo_font_map_new();
  pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(m_state->map), 72);
  m_state->context = pango_font_map_create_context(m_state->map);
  if (target) pango_cairo_update_context(target, m_state->context);
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  pango_cairo_context_set_font_options(m_state->context, options);
  cairo_font_options_destroy(options);
  pango_context_set_round_glyph_positions(m_state->context, FALSE);
  pango_context_set_language(m_state->context, pango_language_from_string("zh-cn"));
  m_state->layout = pango_layout_new(m_state->context);
  pango_layout_set_single_paragraph_mode(m_state->layout, TRUE);
}

FontLayouts::~FontLayouts() {
  for (const auto& [font, description] : m_state->descriptions) pango_font_description_free(description);
  g_object_unref(m_state->layout);
  g_object_unref(m_state->context);
  g_object_unref(m_state->map);
}

double FontLayouts::capHeight(const scene::Font& font) {
  const auto [found, isNew] = m_state->capHeights.try_emplace(font);
  if (!isNew) return found->second;
  m_state->setText(font, L"H", 0);
  PangoRectangle ink;
  pango_layout_get_extents(m_state->layout, &ink, nullptr);
  const double height = static_cast<double>(ink.height) / PANGO_SCALE;
  constexpr double kUsual = 0.7; // of the size, for a font that has no letters
  found->second = height > 0 ? height : kUsual * kFontSize;
  return found->second;
}

PangoLayout* FontLayouts::layout(const scene::Font& font, std::wstring_view text) {
  // The strokes of a character fill nine tenths of its square.
  constexpr double kSquare = 1.1;
  const int fullWidth = font.isStroked() ? static_cast<int>(kSquare * capHeight(font) * PANGO_SCALE) : 0;
  m_state->setText(font, text, fullWidth);
  return m_state->layout;
}

} // namespace plot
