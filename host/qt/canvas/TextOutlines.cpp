#include "host/qt/canvas/TextOutlines.h"

#include <QFontMetricsF>
#include <QTransform>

namespace desktop {
namespace {

constexpr int kSize = 100;        // pixels: outlines do not depend on it, hinting would
constexpr int kMostPaths = 20000; // afterwards all are made anew

QString KeyOf(const QString& family, bool bold, bool italic) {
  return family + QLatin1Char('\x01') + QLatin1Char(bold ? 'b' : '-') + QLatin1Char(italic ? 'i' : '-');
}

} // namespace

const TextOutlines::Face& TextOutlines::face(const QString& family, bool bold, bool italic) {
  const QString key = KeyOf(family, bold, italic);
  const auto found = m_faces.constFind(key);
  if (found != m_faces.constEnd()) return *found;
  Face face;
  if (!family.isEmpty()) face.font.setFamily(family);
  face.font.setPixelSize(kSize);
  face.font.setBold(bold);
  face.font.setItalic(italic);
  face.font.setHintingPreference(QFont::PreferNoHinting);
  const double height = QFontMetricsF(face.font).capHeight();
  face.capHeight = height > 0 ? height : 0.7 * kSize;
  return *m_faces.insert(key, face);
}

const QPainterPath& TextOutlines::of(const QString& family, bool bold, bool italic, const QString& text) {
  const QString key = KeyOf(family, bold, italic) + QLatin1Char('\x02') + text;
  const auto found = m_paths.constFind(key);
  if (found != m_paths.constEnd()) return *found;
  if (m_paths.size() >= kMostPaths) m_paths.clear();
  const Face& used = face(family, bold, italic);
  QPainterPath path;
  path.addText(0, 0, used.font, text);
  return *m_paths.insert(key, QTransform::fromScale(1 / used.capHeight, -1 / used.capHeight).map(path));
}

double TextOutlines::advance(const QString& family, bool bold, bool italic, const QString& text) {
  const QString key = KeyOf(family, bold, italic) + QLatin1Char('\x02') + text;
  const auto found = m_advances.constFind(key);
  if (found != m_advances.constEnd()) return *found;
  if (m_advances.size() >= kMostPaths) m_advances.clear();
  const Face& used = face(family, bold, italic);
  return *m_advances.insert(key, QFontMetricsF(used.font).horizontalAdvance(text) / used.capHeight);
}

} // namespace desktop
