#include "host/qt/canvas/TextOutlines.h"

#include "host/plot/FontFamilies.h"
#include "host/qt/QtText.h"

#include <QFontMetricsF>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr int kSize = 100;        // pixels: outlines do not depend on it, hinting would
constexpr int kMostPaths = 20000; // of one font; afterwards all are made anew
constexpr double kCoarse = 0.08;  // of the height of capitals, below which points of an outline are one

struct Range {
  wchar_t first;
  wchar_t last;
};
constexpr Range kPlain[] = {{0x20, 0x7E},     {0xA0, 0x2FF},    {0x370, 0x58F},   {0x2010, 0x2027},
                            {0x2030, 0x205E}, {0x2070, 0x20CF}, {0x2100, 0x2BFF}, {0x3000, 0x302F},
                            {0x3030, 0x3098}, {0x309B, 0x9FFF}, {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},
                            {0xFF00, 0xFFEF}};

bool isPlainLetter(wchar_t c) {
  return std::any_of(std::begin(kPlain), std::end(kPlain),
                     [c](const Range& range) { return c >= range.first && c <= range.last; });
}

Outline outlineOf(const QPainterPath& path, double least) {
  Outline outline;
  for (const QPolygonF& polygon : path.toSubpathPolygons()) {
    const std::size_t begin = outline.points.size();
    for (const QPointF& p : polygon) {
      const AcGePoint2d point(p.x(), p.y());
      if (outline.points.size() > begin && outline.points.back().distanceTo(point) < least) continue;
      outline.points.push_back(point);
      outline.box.Add(ge::Box2d{point.x, point.y, point.x, point.y});
    }
    if (outline.points.size() > begin) outline.ends.push_back(outline.points.size());
  }
  return outline;
}

// In sizes of capitals again.
Outline scaled(Outline outline, double k) {
  for (AcGePoint2d& p : outline.points) p = {p.x * k, -p.y * k};
  outline.box = {outline.box.minX * k, -outline.box.maxY * k, outline.box.maxX * k, -outline.box.minY * k};
  return outline;
}

} // namespace

TextOutlines::Face::Face(const scene::Font& font) {
  m_font.setFamilies(QString::fromStdString(plot::FamiliesOf(font)).split(QLatin1Char(',')));
  m_font.setPixelSize(kSize);
  m_font.setBold(font.bold);
  m_font.setItalic(font.italic);
  m_font.setHintingPreference(QFont::PreferNoHinting);
  m_font.setKerning(false); // in drawings a letter is as wide beside any other
  const double height = QFontMetricsF(m_font).capHeight();
  m_capHeight = height > 0 ? height : 0.7 * kSize;
}

TextOutlines::Glyph TextOutlines::Face::make(wchar_t c) const {
  const QString letter = QString::fromWCharArray(&c, 1);
  QPainterPath path;
  path.addText(0, 0, m_font, letter);
  Glyph made;
  made.fine = scaled(outlineOf(path, 0), 1 / m_capHeight);
  made.coarse = scaled(outlineOf(path, kCoarse * m_capHeight), 1 / m_capHeight);
  made.advance = QFontMetricsF(m_font).horizontalAdvance(letter) / m_capHeight;
  return made;
}

const TextOutlines::Glyph& TextOutlines::Face::glyph(wchar_t c) {
  if (static_cast<std::size_t>(c) < kDirect) {
    auto& kept = m_direct[static_cast<std::size_t>(c)];
    if (!kept) kept = std::make_unique<Glyph>(make(c));
    return *kept;
  }
  const auto found = m_others.find(c);
  return found != m_others.end() ? found->second : m_others.emplace(c, make(c)).first->second;
}

const QPainterPath& TextOutlines::Face::path(const QString& text) {
  const auto found = m_paths.constFind(text);
  if (found != m_paths.constEnd()) return *found;
  if (m_paths.size() >= kMostPaths) m_paths.clear();
  QPainterPath path;
  path.addText(0, 0, m_font, text);
  return *m_paths.insert(text, QTransform::fromScale(1 / m_capHeight, -1 / m_capHeight).map(path));
}

double TextOutlines::Face::advance(const QString& text) {
  const auto found = m_advances.constFind(text);
  if (found != m_advances.constEnd()) return *found;
  if (m_advances.size() >= kMostPaths) m_advances.clear();
  return *m_advances.insert(text, QFontMetricsF(m_font).horizontalAdvance(text) / m_capHeight);
}

bool TextOutlines::isPlain(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(), isPlainLetter);
}

TextOutlines::Face& TextOutlines::face(const scene::Font& font) {
  if (m_lastFont && *m_lastFont == font) return *m_lastFace;
  auto& kept = *m_faces.try_emplace(font, font).first;
  m_lastFont = &kept.first;
  m_lastFace = &kept.second;
  return *m_lastFace;
}

const QPainterPath& TextOutlines::of(const scene::Font& font, const QString& text) {
  return face(font).path(text);
}

double TextOutlines::advance(const scene::Font& font, std::wstring_view text) {
  Face& used = face(font);
  if (!isPlain(text)) return used.advance(Shown(CString(text)));
  double sum = 0;
  for (const wchar_t c : text) sum += used.glyph(c).advance;
  return sum;
}

double OutlineMetrics::advance(const scene::Font& font, std::wstring_view text) const {
  return m_outlines.advance(font, text);
}

} // namespace desktop
