#include "host/qt/canvas/GlyphFill.h"

#include "host/qt/canvas/Blend.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop {
namespace {

constexpr int kLargest = 400; // pixels of a side

} // namespace

GlyphFill::GlyphFill(QImage& image, const QRect& area) : m_image(image), m_area(area & image.rect()) {}

void GlyphFill::setColor(const QColor& color) {
  m_color = Spread(color.rgb());
  m_alpha = static_cast<float>(color.alpha()) * 256 / 255;
}

bool GlyphFill::draw(const Outline& outline, const GlyphPlace& place) {
  ge::Box2d box;
  for (const double x : {outline.box.minX, outline.box.maxX})
    for (const double y : {outline.box.minY, outline.box.maxY}) {
      const AcGePoint2d p = place.map({x, y});
      box.Add(ge::Box2d{p.x, p.y, p.x, p.y});
    }
  if (outline.points.empty() || box.maxX < m_area.left() || box.minX > m_area.right() + 1 ||
      box.maxY < m_area.top() || box.minY > m_area.bottom() + 1)
    return true;
  if (!(box.maxX - box.minX < kLargest && box.maxY - box.minY < kLargest)) return false;
  const int left = static_cast<int>(std::floor(box.minX));
  const int top = static_cast<int>(std::floor(box.minY));
  m_width = static_cast<int>(std::ceil(box.maxX)) - left + 2;
  m_height = static_cast<int>(std::ceil(box.maxY)) - top + 1;
  m_cells.assign(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height), 0);
  const GlyphPlace inCells{place.along, place.up, {place.origin.x - left, place.origin.y - top}};
  std::size_t begin = 0;
  for (const std::size_t end : outline.ends) {
    AcGePoint2d before = inCells.map(outline.points[end - 1]);
    for (std::size_t i = begin; i < end; ++i) {
      const AcGePoint2d p = inCells.map(outline.points[i]);
      edge(before, p);
      before = p;
    }
    begin = end;
  }
  blendRows(left, top);
  return true;
}

// Adds what lies right of an edge, row by row: the share of the pixels that it goes through, and all of those
// behind them, which the running sum along the row reaches.
void GlyphFill::edge(AcGePoint2d from, AcGePoint2d to) {
  if (from.y == to.y) return;
  const float direction = from.y < to.y ? 1.0F : -1.0F;
  if (from.y > to.y) std::swap(from, to);
  const double slope = (to.x - from.x) / (to.y - from.y);
  double x = from.x;
  const int last = std::min(static_cast<int>(std::ceil(to.y)), m_height);
  for (int row = std::max(static_cast<int>(from.y), 0); row < last; ++row) {
    float* cells = m_cells.data() + static_cast<std::ptrdiff_t>(row) * m_width;
    const double rows = std::min(row + 1.0, to.y) - std::max(static_cast<double>(row), from.y);
    const double next = x + slope * rows;
    const float all = static_cast<float>(rows) * direction;
    const auto [low, high] = std::minmax(x, next);
    const int first = std::clamp(static_cast<int>(low), 0, m_width - 2);
    const int end = std::clamp(static_cast<int>(std::ceil(high)), 0, m_width - 1);
    if (end <= first + 1) {
      const float right = all * static_cast<float>((x + next) / 2 - first);
      cells[first] += all - right;
      cells[first + 1] += right;
    } else {
      const auto perCell = static_cast<float>(1 / (high - low));
      float covered = 0; // of the stretch up to the cell
      float before = 0;  // what the cells before got in all
      for (int cell = first; cell < end; ++cell) {
        const auto a = static_cast<float>(std::max(low, static_cast<double>(cell)));
        const auto b = static_cast<float>(std::min(high, cell + 1.0));
        const float part = (b - a) * perCell;
        // Up to here the edge has passed; of this cell, what lies right of the middle of its part.
        const float share = covered + part * (static_cast<float>(cell + 1) - (a + b) / 2);
        cells[cell] += all * (share - before);
        before = share;
        covered += part;
      }
      cells[end] += all * (1 - before);
    }
    x = next;
  }
}

void GlyphFill::blendRows(int left, int top) {
  const int begin = std::max(m_area.left(), left);
  const int end = std::min(m_area.right() + 1, left + m_width);
  const int rowEnd = std::min(m_area.bottom() + 1, top + m_height);
  for (int y = std::max(m_area.top(), top); y < rowEnd; ++y) {
    const float* cells = m_cells.data() + static_cast<std::ptrdiff_t>(y - top) * m_width;
    auto* pixels = reinterpret_cast<std::uint32_t*>(m_image.scanLine(y));
    float sum = 0;
    for (int x = left; x < begin; ++x) sum += cells[x - left];
    for (int x = begin; x < end; ++x) {
      sum += cells[x - left];
      const float cover = std::min(std::fabs(sum), 1.0F);
      constexpr float kUnseen = 1.0F / 256;
      if (cover > kUnseen) Blend(pixels[x], m_color, static_cast<unsigned>(cover * m_alpha));
    }
  }
}

} // namespace desktop
