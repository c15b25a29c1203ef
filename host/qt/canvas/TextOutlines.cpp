#include "host/qt/canvas/TextOutlines.h"

#include "host/plot/FontFamilies.h"
#include "host/qt/QtText.h"

#include <QFontMetricsF>
#include <QTransform>

namespace desktop {
namespace {

constexpr int kSize = 100;        // pixels: outlines do not depend on it, hinting would
constexpr int kMostPaths = 20000; // of one font; afterwards all are made anew

} // namespace

TextOutlines::Face& TextOutlines::face(const scene::Font& font) {
  const auto [found, isNew] = m_faces.try_emplace(font);
  Face& face = found->second;
  if (!isNew) return face;
  face.font.setFamilies(QString::fromStdString(plot::FamiliesOf(font)).split(QLatin1Char(',')));
  face.font.setPixelSize(kSize);
  face.font.setBold(font.bold);
  face.font.setItalic(font.italic);
  face.font.setHintingPreference(QFont::PreferNoHinting);
  const double height = QFontMetricsF(face.font).capHeight();
  face.capHeight = height > 0 ? height : 0.7 * kSize;
  return face;
}

const QPainterPath& TextOutlines::of(const scene::Font& font, const QString& text) {
  Face& used = face(font);
  const auto found = used.paths.constFind(text);
  if (found != used.paths.constEnd()) return *found;
  if (used.paths.size() >= kMostPaths) used.paths.clear();
  QPainterPath path;
  path.addText(0, 0, used.font, text);
  return *used.paths.insert(text, QTransform::fromScale(1 / used.capHeight, -1 / used.capHeight).map(path));
}

double TextOutlines::advance(const scene::Font& font, const QString& text) {
  Face& used = face(font);
  const auto found = used.advances.constFind(text);
  if (found != used.advances.constEnd()) return *found;
  if (used.advances.size() >= kMostPaths) used.advances.clear();
  return *used.advances.insert(text, QFontMetricsF(used.font).horizontalAdvance(text) / used.capHeight);
}

double OutlineMetrics::advance(const scene::Font& font, std::wstring_view text) const {
  return m_outlines.advance(font, Shown(CString(text)));
}

} // namespace desktop
