#include "host/qt/canvas/WorldPainter.h"

#include "host/db/AcDbEntity.h"
#include "host/ed/EntitySearch.h"
#include "host/qt/QtText.h"
#include "host/scene/Color.h"

#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr double kPointMark = 3;   // pixels to each side
constexpr double kLeastText = 2.5; // pixels of height, below which a line stands for the text

bool IsOnScreen(const QPointF& p) {
  constexpr double far = 1e7; // the painter's own arithmetic ends somewhere beyond
  return std::fabs(p.x()) < far && std::fabs(p.y()) < far;
}

} // namespace

WorldPainter::WorldPainter(QPainter& painter, const ViewMap& map, TextOutlines& outlines,
                           const QColor& background)
    : m_painter(painter), m_map(map), m_outlines(outlines), m_pen(painter.pen()), m_background(background) {}

void WorldPainter::setPen() {
  if (!m_background.isValid()) return;
  const int index = subEntityTraits().color();
  if (index == AcCmColor::kByLayer) return m_painter.setPen(m_pen);
  const scene::Rgb rgb = scene::Color::fromIndex(index).on({static_cast<std::uint8_t>(m_background.red()),
                                                            static_cast<std::uint8_t>(m_background.green()),
                                                            static_cast<std::uint8_t>(m_background.blue())});
  QPen pen = m_pen;
  pen.setColor(QColor(rgb.red, rgb.green, rgb.blue));
  m_painter.setPen(pen);
}

bool WorldPainter::beginEntity(const AcDbEntity& entity) {
  return ed::IsDrawn(entity);
}

void WorldPainter::worldPoint(const AcGePoint3d& at) {
  setPen();
  const QPointF p = m_map.toScreen(at);
  if (!IsOnScreen(p)) return;
  m_painter.drawLine(p - QPointF(kPointMark, 0), p + QPointF(kPointMark, 0));
  m_painter.drawLine(p - QPointF(0, kPointMark), p + QPointF(0, kPointMark));
}

void WorldPainter::worldPolyline(std::span<const AcGePoint3d> points) {
  setPen();
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const AcGePoint3d& point : points) {
    const QPointF p = m_map.toScreen(point);
    if (IsOnScreen(p)) polygon.append(p);
  }
  m_painter.drawPolyline(polygon);
}

void WorldPainter::worldText(const AcGePoint3d& at, const AcGeVector3d& along, const AcGeVector3d& up,
                             const CString& text) {
  setPen();
  const QPointF origin = m_map.toScreen(at);
  const double height = std::hypot(up.x, up.y);
  const double width = std::hypot(along.x, along.y);
  const double k = 1 / m_map.unitsPerPixel;
  if (!IsOnScreen(origin) || height <= 0 || width <= 0) return;
  if (height * k < kLeastText) {
    m_painter.drawLine(origin, m_map.toScreen(at + along));
    return;
  }
  const QTransform matrix(along.x / width * height * k, -along.y / width * height * k, up.x * k, -up.y * k,
                          origin.x(), origin.y());
  const QPainterPath path = matrix.map(m_outlines.of({}, Shown(text)));
  m_painter.fillPath(path, m_painter.pen().color());
}

} // namespace desktop
