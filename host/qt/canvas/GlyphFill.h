// Shades the outlines of small letters straight into the pixels of an image, each pixel by how much of it
// they cover. Texts of drawings are many and small; QPainter takes ten times as long for them.
#pragma once

#include "host/ge/Box2d.h"

#include <QColor>
#include <QRect>

#include <cstdint>
#include <vector>

class QImage;

namespace desktop {

// Closed polygons: the points of all of them, and where each ends.
struct Outline {
  std::vector<AcGePoint2d> points;
  std::vector<std::size_t> ends;
  ge::Box2d box;
};

// From letter to screen: x and y of an outline, then the place of its origin.
struct GlyphPlace {
  AcGeVector2d along;
  AcGeVector2d up;
  AcGePoint2d origin;
  AcGePoint2d map(const AcGePoint2d& p) const {
    return {origin.x + along.x * p.x + up.x * p.y, origin.y + along.y * p.x + up.y * p.y};
  }
};

class GlyphFill {
 public:
  // See ThinLines for the image and the area.
  GlyphFill(QImage& image, const QRect& area);
  void setColor(const QColor& color);
  // False for a letter that is too large; nothing is drawn then.
  bool draw(const Outline& outline, const GlyphPlace& place);

 private:
  void edge(AcGePoint2d from, AcGePoint2d to);
  void blendRows(int left, int top);

  QImage& m_image;
  QRect m_area;
  std::uint64_t m_color = 0; // spread, see Blend
  float m_alpha = 256;
  int m_width = 0; // of the cells
  int m_height = 0;
  std::vector<float> m_cells; // by how much coverage grows from pixel to pixel along a row
};

} // namespace desktop
