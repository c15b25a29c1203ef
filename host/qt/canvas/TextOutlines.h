// The outlines of texts, kept for the next painting: letter by letter where each stands for itself, whole
// texts as paths where they don't. Capitals are 1 high, the base line is y = 0 and y points up, as in
// drawings.
#pragma once

#include "host/qt/canvas/GlyphFill.h"
#include "host/scene/text/TextMetrics.h"

#include <QFont>
#include <QHash>
#include <QPainterPath>

#include <array>
#include <memory>
#include <unordered_map>

namespace desktop {

class TextOutlines {
 public:
  struct Glyph {
    Outline fine;
    Outline coarse; // for letters of a few pixels
    double advance = 0;
  };
  class Face;

  // Its letters follow each other by their own widths: Latin and its kin, Chinese, Japanese, Korean.
  static bool isPlain(std::wstring_view text);

  Face& face(const scene::Font& font);
  const QPainterPath& of(const scene::Font& font, const QString& text);
  // How far the text moves the pen, for capitals of height 1.
  double advance(const scene::Font& font, std::wstring_view text);

  class Face {
   public:
    explicit Face(const scene::Font& font);
    const Glyph& glyph(wchar_t c);
    const QPainterPath& path(const QString& text);
    double advance(const QString& text);

   private:
    static constexpr std::size_t kDirect = 128;
    Glyph make(wchar_t c) const;

    QFont m_font;
    double m_capHeight = 1; // in the size of the font
    std::array<std::unique_ptr<Glyph>, kDirect> m_direct;
    std::unordered_map<wchar_t, Glyph> m_others;
    QHash<QString, QPainterPath> m_paths;
    QHash<QString, double> m_advances;
  };

 private:
  std::unordered_map<scene::Font, Face> m_faces;
  // Texts of one font come one after the other.
  const scene::Font* m_lastFont = nullptr;
  Face* m_lastFace = nullptr;
};

// Gives the scene the measures of the fonts that it is painted with.
class OutlineMetrics : public scene::TextMetrics {
 public:
  explicit OutlineMetrics(TextOutlines& outlines) : m_outlines(outlines) {}
  double advance(const scene::Font& font, std::wstring_view text) const override;

 private:
  TextOutlines& m_outlines;
};

} // namespace desktop
