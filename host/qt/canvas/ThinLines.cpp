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

// Of a coordinate in the window or near it. The library's is a call where the processor may be an old one.
int Floor(double value) {
  const int cut = static_cast<int>(value);
  return cut - (value < cut);
}

} // namespace

ThinLines::ThinLines(QImage& image, const QRect& area, bool draft)
    : m_pixels(reinterpret_cast<std::uint32_t*>(image.bits())),
      m_axes{
          {1, std::max(area.left(), 0), std::min(area.right() + 1, image.width())},
          {image.bytesPerLine() / 4, std::max(area.top(), 0), std::min(area.bottom() + 1, image.height())}},
      m_draft(draft) {}

void ThinLines::setColor(const QColor& color) {
  m_pixel = color.rgb();
  m_color = Spread(m_pixel);
  m_alpha = static_cast<unsigned>(color.alpha()) * 256 / 255;
}

bool ThinLines::cut(const AcGePoint2d& from, const AcGePoint2d& to, double& begin, double& end) const {
  begin = 0;
  end = 1;
  if (isNear(from) && isNear(to)) return true;
  // A pixel more on each side: what is shaded there may reach into the area.
  const auto& [x, y] = m_axes;
  return narrow(from.x, to.x - from.x, x.begin - 1.0, x.end + 1.0, begin, end) &&
         narrow(from.y, to.y - from.y, y.begin - 1.0, y.end + 1.0, begin, end);
}

void ThinLines::dot(const AcGePoint2d& at) {
  const auto& [x, y] = m_axes;
  if (!(at.x >= x.begin && at.x < x.end && at.y >= y.begin && at.y < y.end)) return;
  Blend(m_pixels[static_cast<int>(at.y) * y.stride + static_cast<int>(at.x)], m_color, m_alpha);
}

// Which way a line runs changes from line to line: what depends on it is looked up, for a processor can't
// guess it, and a wrong guess takes as long as some pixels.
void ThinLines::line(const AcGePoint2d& from, const AcGePoint2d& to, bool smooth) {
  double begin = 0;
  double end = 1;
  if (!cut(from, to, begin, end)) return;
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double ends[2][2] = {{from.x + dx * begin, from.x + dx * end},
                             {from.y + dy * begin, from.y + dy * end}};
  constexpr double kDot = 1e-3;
  if (std::fabs(ends[0][1] - ends[0][0]) < kDot && std::fabs(ends[1][1] - ends[1][0]) < kDot)
    return dot({ends[0][0], ends[1][0]});
  const int along = std::fabs(dx) < std::fabs(dy);
  const int across = 1 - along;
  const double* const a = ends[along];
  const double* const c = ends[across];
  if (smooth && m_draft) return plain(m_axes[along], m_axes[across], a[0], c[0], a[1], c[1]);
  if (smooth) return shade(m_axes[along], m_axes[across], a[0], c[0], a[1], c[1]);
  const double middle[2] = {(from.x + to.x) / 2, (from.y + to.y) / 2};
  sharp(m_axes[along], m_axes[across], a[0], a[1], middle[across]);
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
inline void ThinLines::shadeOne(const Axis& along, const Axis& across, int a, double c, double part) {
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
inline void ThinLines::shadeRun(const Axis& along, const Axis& across, int begin, int end, std::int64_t c,
                                std::int64_t step) {
  // Of their own: a pixel that is written might be a member for all that the compiler knows.
  const Axis side = across;
  const std::ptrdiff_t stride = along.stride;
  const std::uint64_t color = m_color;
  const unsigned alpha = m_alpha;
  std::uint32_t* row = m_pixels + begin * stride;
  for (int a = begin; a < end; ++a, c += step, row += stride) {
    const auto at = static_cast<std::ptrdiff_t>(c >> kFixedBits);
    const auto share = static_cast<unsigned>((c >> (kFixedBits - 8)) & 0xFF);
    const unsigned upper = (alpha * share) >> 8;
    std::uint32_t* pixel = row + at * side.stride;
    if (!Cut || (at >= side.begin && at < side.end)) Blend(*pixel, color, alpha - upper);
    if (!Cut || (at + 1 >= side.begin && at + 1 < side.end)) Blend(pixel[side.stride], color, upper);
  }
}

// The line covers one pixel across, shared by the two that it lies between.
void ThinLines::shade(const Axis& along, const Axis& across, double a0, double c0, double a1, double c1) {
  const double slope = (c1 - c0) / (a1 - a0);
  const auto acrossAt = [&](double a) { return c0 + slope * (a - a0); };
  const double least = std::min(a0, a1);
  const double most = std::max(a0, a1);
  const int first = Floor(least);
  const int last = Floor(most);
  if (first == last) return shadeOne(along, across, first, (c0 + c1) / 2, most - least);
  shadeOne(along, across, first, acrossAt((least + first + 1) / 2), first + 1 - least);
  shadeOne(along, across, last, acrossAt((most + last) / 2), most - last);
  const int begin = std::max(first + 1, along.begin);
  const int end = std::min(last, along.end);
  if (begin >= end) return;
  const auto c = static_cast<std::int64_t>((acrossAt(begin + 0.5) - 0.5) * kOne);
  const auto step = static_cast<std::int64_t>(slope * kOne);
  const std::int64_t atEnd = c + step * (end - 1 - begin);
  const std::int64_t low = std::min(c, atEnd);
  const std::int64_t high = std::max(c, atEnd);
  const bool inside = (low >> kFixedBits) >= across.begin && (high >> kFixedBits) + 1 < across.end;
  inside ? shadeRun<false>(along, across, begin, end, c, step)
         : shadeRun<true>(along, across, begin, end, c, step);
}

// One pixel for each along the line.
void ThinLines::plain(const Axis& along, const Axis& across, double a0, double c0, double a1, double c1) {
  const double slope = (c1 - c0) / (a1 - a0);
  const int begin = std::max(Floor(std::min(a0, a1)), along.begin);
  const int end = std::min(Floor(std::max(a0, a1)) + 1, along.end);
  const Axis side = across;
  const std::ptrdiff_t stride = along.stride;
  auto c = static_cast<std::int64_t>((c0 + slope * (begin + 0.5 - a0)) * kOne);
  const auto step = static_cast<std::int64_t>(slope * kOne);
  std::uint32_t* row = m_pixels + begin * stride;
  for (int a = begin; a < end; ++a, c += step, row += stride) {
    const auto at = static_cast<std::ptrdiff_t>(c >> kFixedBits);
    if (at < side.begin || at >= side.end) continue;
    if (m_alpha == 256)
      row[at * side.stride] = m_pixel;
    else
      Blend(row[at * side.stride], m_color, m_alpha);
  }
}

} // namespace desktop
