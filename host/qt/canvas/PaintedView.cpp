#include "host/qt/canvas/PaintedView.h"

#include "host/qt/canvas/DrawingPicture.h"
#include "host/qt/canvas/ScenePainter.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <thread>
#include <vector>

namespace desktop {
namespace {

using Clock = std::chrono::steady_clock;

// Pages that are painted one after the other, whatever time they take: a small drawing is never seen half.
constexpr std::size_t kTogether = 2;
constexpr std::size_t kInAHurry = 16; // by several threads
constexpr double kWhole = 0.02;       // pixels that a shift by whole ones may be off

} // namespace

void PaintedView::begin(const ViewMap& map, const QColor& background, bool draft) {
  const QSize size(std::max(static_cast<int>(map.size.width()), 1),
                   std::max(static_cast<int>(map.size.height()), 1));
  if (m_image.size() != size) m_image = QImage(size, QImage::Format_RGB32);
  m_image.fill(background);
  m_map = map;
  m_background = background;
  m_pages = 0;
  m_complete = false;
  m_draft = draft;
}

// What is painted of all, anew in a part of the window.
void PaintedView::paintArea(const QRect& area, DrawingPicture& picture) {
  if (area.isEmpty()) return;
  QPainter(&m_image).fillRect(area, m_background);
  ScenePainter painter(m_image, area, m_map, m_background, picture.outlines(), m_draft);
  for (std::size_t page = 0; page < m_pages; ++page) painter.paint(picture.page(page), picture.hidden());
}

void PaintedView::repaint(const ge::Box2d& box, DrawingPicture& picture) {
  if (isEmpty() || !box.Overlaps(m_map.visible())) return;
  constexpr int kAround = 2; // pixels: what smoothing adds
  const QRectF window(m_image.rect());
  const QRectF place(m_map.toScreen(AcGePoint2d(box.minX, box.maxY)),
                     m_map.toScreen(AcGePoint2d(box.maxX, box.minY)));
  const QRect area = (place.adjusted(-kAround, -kAround, kAround, kAround) & window).toAlignedRect();
  m_pages = std::min(m_pages, picture.pageCount());
  if (m_complete) m_pages = picture.pageCount();
  paintArea(area & m_image.rect(), picture);
}

// Each thread paints a band of the window. They share the pixels and nothing else.
void PaintedView::paintPages(std::size_t begin, std::size_t end, int bands, DrawingPicture& picture) {
  const QRect all = m_image.rect();
  uchar* const pixels = m_image.bits();
  const auto paintBand = [&, this](int band) {
    QImage image(pixels, all.width(), all.height(), m_image.bytesPerLine(), m_image.format());
    const int top = all.height() * band / bands;
    const QRect area(0, top, all.width(), all.height() * (band + 1) / bands - top);
    ScenePainter painter(image, area, m_map, m_background, picture.outlines(static_cast<std::size_t>(band)),
                         m_draft);
    for (std::size_t page = begin; page < end; ++page) painter.paint(picture.page(page), picture.hidden());
  };
  std::vector<std::jthread> threads;
  for (int band = 1; band < bands; ++band) threads.emplace_back(paintBand, band);
  paintBand(0);
}

bool PaintedView::goOn(DrawingPicture& picture, std::chrono::microseconds time, bool hurry) {
  if (m_complete) return true;
  const auto end = Clock::now() + time;
  while (m_pages < picture.pageCount()) {
    const std::size_t next = std::min(m_pages + (hurry ? kInAHurry : kTogether), picture.pageCount());
    const bool worthThreads = hurry && next - m_pages > kTogether;
    paintPages(m_pages, next, worthThreads ? static_cast<int>(picture.threads()) : 1, picture);
    m_pages = next;
    if (m_pages < picture.pageCount() && Clock::now() >= end) return false;
  }
  return m_complete = true;
}

bool PaintedView::shows(const ViewMap& map) const {
  if (!m_complete || map.size != m_map.size || map.unitsPerPixel != m_map.unitsPerPixel) return false;
  return map.centre.distanceTo(m_map.centre) < kWhole * map.unitsPerPixel;
}

bool PaintedView::shiftTo(const ViewMap& map, DrawingPicture& picture) {
  if (isEmpty() || map.size != m_map.size || map.unitsPerPixel != m_map.unitsPerPixel) return false;
  const QPointF offset = map.toScreen(m_map.centre) - QPointF(map.size.width() / 2, map.size.height() / 2);
  const double x = std::round(offset.x());
  const double y = std::round(offset.y());
  if (!(std::fabs(offset.x() - x) < kWhole && std::fabs(offset.y() - y) < kWhole)) return false;
  const QRect all = m_image.rect();
  if (std::fabs(x) >= all.width() || std::fabs(y) >= all.height()) return false;
  const int dx = static_cast<int>(x);
  const int dy = static_cast<int>(y);
  // By whole pixels exactly, so that many shifts don't add up to an error.
  m_map.centre = {m_map.centre.x - x * m_map.unitsPerPixel, m_map.centre.y + y * m_map.unitsPerPixel};
  if (dx == 0 && dy == 0) return true;
  const QRect kept = all.translated(dx, dy) & all;
  const QRect from = kept.translated(-dx, -dy);
  const qsizetype stride = m_image.bytesPerLine();
  uchar* bytes = m_image.bits();
  const auto rowAt = [&](const QPoint& p) { return bytes + p.y() * stride + p.x() * 4; };
  const auto rowBytes = static_cast<std::size_t>(kept.width()) * 4;
  for (int i = 0; i < kept.height(); ++i) {
    const int row = dy > 0 ? kept.height() - 1 - i : i; // those that are read later stay until then
    std::memmove(rowAt(kept.topLeft() + QPoint(0, row)), rowAt(from.topLeft() + QPoint(0, row)), rowBytes);
  }
  paintArea(QRect(0, 0, all.width(), kept.top()), picture);
  paintArea(QRect(0, kept.bottom() + 1, all.width(), all.height() - kept.bottom() - 1), picture);
  paintArea(QRect(0, kept.top(), kept.left(), kept.height()), picture);
  paintArea(QRect(kept.right() + 1, kept.top(), all.width() - kept.right() - 1, kept.height()), picture);
  return true;
}

} // namespace desktop
