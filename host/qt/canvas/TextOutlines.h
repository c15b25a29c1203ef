// The outlines of texts as paths, kept for the next painting. Capitals are 1 high, the base line is y = 0 and
// y points up, as in drawings.
#pragma once

#include <QFont>
#include <QHash>
#include <QPainterPath>

namespace desktop {

class TextOutlines {
 public:
  const QPainterPath& of(const QString& family, bool bold, bool italic, const QString& text);
  // How far the text moves the pen, for capitals of height 1.
  double advance(const QString& family, bool bold, bool italic, const QString& text);

 private:
  struct Face {
    QFont font;
    double capHeight = 1; // of the font in its own size
  };
  const Face& face(const QString& family, bool bold, bool italic);

  QHash<QString, Face> m_faces;
  QHash<QString, QPainterPath> m_paths;
  QHash<QString, double> m_advances;
};

} // namespace desktop
