#include "host/qt/canvas/ThinLines.h"

#include "host/qt/canvas/Blend.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop {
namespace {

constexpr int kFixedBits = 16; // behind the point of positions across a line
constexpr double kOne = 1 << kFixedBits;

// Narrows the shares of a line that lie between two bounds of one coordinate.
bool narrow(double from, double by, double low, double high, double& begin, double& end) {
  if (by == 0) return from >= low && from <= high;
  const double a = (low - from) / by;
  const double b = (high - from) / by;
  begin = std::max(begin, std::min(a, b));
  end = std::min(end, std::max(a, b));
  return begin <= end;
}

} // namespace

ThinLines::ThinLines(QImage& image, const QRect& area)
    : m_pixels(reinterpret_cast<std::uint32_t*>(image.bits())), m_x{1, std::max(area.left(), 0),
                                                                    std::min(area.right() + 1,
                                                                             image.width())},
      m_y{image.bytesPerLine() / 4, std::max(area.top(), 0), std::min(area.bottom() + 1, image.height())} {}

void ThinLines::setColor(const QColor& color) {
  m_color = Spread(color.rgb());
  m_alpha = static_cast<unsigned>(color.alpha()) * 256 / 255;
}

bool ThinLines::cut(const AcGePoint2d& from, const AcGePoint2d& to, double& begin, double& end) const {
  begin = 0;
  end = 1;
  if (isNear(from) && isNear(to)) return true;
  // A pixel more on each side: what is shaded there may reach into the area.
  return narrow(from.x, to.x - from.x, m_x.begin - 1.0, m_x.end + 1.0, begin, end) &&
         narrow(from.y, to.y - from.y, m_y.begin - 1.0, m_y.end + 1.0, begin, end);
}

void ThinLines::dot(const AcGePoint2d& at) {
  const double x = std::floor(at.x);
  const double y = std::floor(at.y);
  if (!(x >= m_x.begin && x < m_x.end && y >= m_y.begin && y < m_y.end)) return;
  Blend(m_pixels[static_cast<std::ptrdiff_t>(y) * m_y.stride + static_cast<std::ptrdiff_t>(x)], m_color,
        m_alpha);
}

void ThinLines::line(const AcGePoint2d& from, const AcGePoint2d& to, bool smooth) {
  double begin = 0;
  double end = 1;
  if (!cut(from, to, begin, end)) return;
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const AcGePoint2d a(from.x + dx * begin, from.y + dy * begin);
  const AcGePoint2d b(from.x + dx * end, from.y + dy * end);
  constexpr double kDot = 1e-3;
  if (std::fabs(b.x - a.x) < kDot && std::fabs(b.y - a.y) < kDot) return dot(a);
  const bool flat = std::fabs(dx) >= std::fabs(dy);
  if (!smooth) {
    if (flat) return sharp(m_x, m_y, a.x, b.x, (from.y + to.y) / 2);
    return sharp(m_y, m_x, a.y, b.y, (from.x + to.x) / 2);
  }
  if (flat) return shade(m_x, m_y, a.x, a.y, b.x, b.y);
  shade(m_y, m_x, a.y, a.x, b.y, b.x);
}

void ThinLines::sharp(const Axis& along, const Axis& across, double a0, double a1, double c) {
  // A line just between two pixels stays in the same one when the view is shifted.
  constexpr double kBetween = 1e-5;
  const int at = static_cast<int>(std::floor(c + kBetween));
  if (at < across.begin || at >= across.end) return;
  const int begin = std::max(static_cast<int>(std::floor(std::min(a0, a1) + kBetween)), along.begin);
  const int end = std::min(static_cast<int>(std::floor(std::max(a0, a1) + kBetween)) + 1, along.end);
  std::uint32_t* pixel = m_pixels + at * across.stride + begin * along.stride;
  for (int i = begin; i < end; ++i, pixel += along.stride) Blend(*pixel, m_color, m_alpha);
}

// One pixel along the line, of which it covers a part.
void ThinLines::shadeOne(const Axis& along, const Axis& across, int a, double c, double part) {
  if (a < along.begin || a >= along.end) return;
  const auto fixed = static_cast<std::int64_t>((c - 0.5) * kOne);
  const auto at = static_cast<int>(fixed >> kFixedBits);
  const auto share = static_cast<unsigned>((fixed >> (kFixedBits - 8)) & 0xFF);
  const auto alpha = static_cast<unsigned>(part * m_alpha);
  const unsigned upper = (alpha * share) >> 8;
  std::uint32_t* pixel = m_pixels + a * along.stride + at * across.stride;
  if (at >= across.begin && at < across.end) Blend(*pixel, m_color, alpha - upper);
  if (at + 1 >= across.begin && at + 1 < across.end) Blend(pixel[across.stride], m_color, upper);
}

// Whole pixels along the line; cut: some of them may lie beside the area.
template <bool Cut>
void ThinLines::shadeRun(const Axis& along, const Axis& across, int begin, int end, std::int64_t c,
                         std::int64_t step) {
  std::uint32_t* row = m_pixels + begin * along.stride;
  for (int a = begin; a < end; ++a, c += step, row += along.stride) {
    const auto at = static_cast<std::ptrdiff_t>(c >> kFixedBits);
    const auto share = static_cast<unsigned>((c >> (kFixedBits - 8)) & 0xFF);
    const unsigned upper = (m_alpha * share) >> 8;
    std::uint32_t* pixel = row + at * across.stride;
    if (!Cut || (at >= across.begin && at < across.end)) Blend(*pixel, m_color, m_alpha - upper);
    if (!Cut || (at + 1 >= across.begin && at + 1 < across.end)) Blend(pixel[across.stride], m_color, upper);
  }
}

// The line covers one pixel across, shared by the two that it lies between.
void ThinLines::shade(const Axis& along, const Axis& across, double a0, double c0, double a1, double c1) {
  if (a0 > a1) {
    std::swap(a0, a1);
    std::swap(c0, c1);
  }
  const double slope = (c1 - c0) / (a1 - a0);
  const int first = static_cast<int>(std::floor(a0));
  const int last = static_cast<int>(std::floor(a1));
  if (first == last) return shadeOne(along, across, first, (c0 + c1) / 2, a1 - a0);
  const auto acrossAt = [&](int a) { return c0 + slope * (a + 0.5 - a0); };
  shadeOne(along, across, first, (c0 + acrossAt(first) + slope / 2) / 2, first + 1 - a0);
  shadeOne(along, across, last, (c1 + acrossAt(last) - slope / 2) / 2, a1 - last);
  const int begin = std::max(first + 1, along.begin);
  const int end = std::min(last, along.end);
  if (begin >= end) return;
  const auto c = static_cast<std::int64_t>((acrossAt(begin) - 0.5) * kOne);
  const auto step = static_cast<std::int64_t>(slope * kOne);
  const std::int64_t atEnd = c + step * (end - 1 - begin);
  const auto [low, high] = std::minmax(c, atEnd);
  const bool inside = (low >> kFixedBits) >= across.begin && (high >> kFixedBits) + 1 < across.end;
  inside ? shadeRun<false>(along, across, begin, end, c, step)
         : shadeRun<true>(along, across, begin, end, c, step);
}

} // namespace desktop
