// The outlines of texts as paths, kept for the next painting. Capitals are 1 high, the base line is y = 0 and
// y points up, as in drawings.
#pragma once

#include "host/scene/text/TextMetrics.h"

#include <QFont>
#include <QHash>
#include <QPainterPath>

#include <unordered_map>

namespace desktop {

class TextOutlines {
 public:
  const QPainterPath& of(const scene::Font& font, const QString& text);
  // How far the text moves the pen, for capitals of height 1.
  double advance(const scene::Font& font, const QString& text);

 private:
  struct Face {
    QFont font;
    double capHeight = 1; // in the size of the font
    QHash<QString, QPainterPath> paths;
    QHash<QString, double> advances;
  };
  Face& face(const scene::Font& font);
  std::unordered_map<scene::Font, Face> m_faces;
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
