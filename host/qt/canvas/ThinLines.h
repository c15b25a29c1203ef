// Lines one pixel wide, drawn straight into the pixels of an image. Drawings are mostly such lines, and
// QPainter takes ten times as long for them; everything else is left to it.
#pragma once

#include "host/ge/Box2d.h"

#include <QColor>
#include <QRect>

#include <cstddef>
#include <cstdint>

class QImage;

namespace desktop {

class ThinLines {
 public:
  // Draws within the area only. The image has the format RGB32, is shared with nobody, and outlives this. A
  // draft is smooth nowhere and done sooner.
  ThinLines(QImage& image, const QRect& area, bool draft = false);
  void setColor(const QColor& color);
  // Coordinates are pixels, y down; a pixel is the square between two integers. A smooth line shades the
  // pixels beside it; one that isn't is for lines along the axes, which are sharp without. One without length
  // is a dot.
  void line(const AcGePoint2d& from, const AcGePoint2d& to, bool smooth);
  void dot(const AcGePoint2d& at);
  // The part of a line near the area, as shares of its length; false when there is none.
  bool cut(const AcGePoint2d& from, const AcGePoint2d& to, double& begin, double& end) const;
  bool isNear(const AcGePoint2d& p) const {
    const auto& [x, y] = m_axes;
    return p.x >= x.begin - 1 && p.x <= x.end + 1 && p.y >= y.begin - 1 && p.y <= y.end + 1;
  }
  // Tells the processor that this pixel will be drawn soon.
  void expect(const AcGePoint2d& at) const {
    const auto& [x, y] = m_axes;
    if (!(at.x >= x.begin && at.x < x.end && at.y >= y.begin && at.y < y.end)) return;
    __builtin_prefetch(m_pixels + static_cast<int>(at.y) * y.stride + static_cast<int>(at.x), 1);
  }
  // What lies in the box may be seen.
  bool mayShow(const ge::Box2d& box) const {
    const auto& [x, y] = m_axes;
    return box.maxX >= x.begin - 1 && box.minX <= x.end + 1 && box.maxY >= y.begin - 1 &&
           box.minY <= y.end + 1;
  }

 private:
  // A direction in the image: the distance of pixels and the bounds of the area.
  struct Axis {
    std::ptrdiff_t stride;
    int begin;
    int end;
  };
  void shade(const Axis& along, const Axis& across, double a0, double c0, double a1, double c1);
  void shadeOne(const Axis& along, const Axis& across, int a, double c, double part);
  template <bool Cut>
  void shadeRun(const Axis& along, const Axis& across, int begin, int end, std::int64_t c, std::int64_t step);
  void plain(const Axis& along, const Axis& across, double a0, double c0, double a1, double c1);
  void sharp(const Axis& along, const Axis& across, double a0, double a1, double c);

  std::uint32_t* m_pixels;
  Axis m_axes[2];            // x, y
  std::uint64_t m_color = 0; // spread, see Blend
  unsigned m_alpha = 256;    // of 256
  std::uint32_t m_pixel = 0; // of the colour alone
  bool m_draft;
};

} // namespace desktop
