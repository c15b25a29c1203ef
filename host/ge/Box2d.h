// An axis-parallel rectangle: the extents of a shape in the plane, or a selection window. It owns its border.
// Comparisons are written so that what is not a number is never inside. What pictures and indices do a
// million times stands here, to be compiled into them.
#pragma once

#include "host/ge/AcGePoint2d.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ge {

struct Box2d {
  // Starts empty: the first point added is then the whole box.
  double minX = std::numeric_limits<double>::infinity();
  double minY = std::numeric_limits<double>::infinity();
  double maxX = -std::numeric_limits<double>::infinity();
  double maxY = -std::numeric_limits<double>::infinity();

  // The rectangle over two opposite corners, given in any order.
  static Box2d FromCorners(const AcGePoint2d& a, const AcGePoint2d& b);

  // Also true for a box with a coordinate that is not a number.
  bool IsEmpty() const { return !(minX <= maxX && minY <= maxY); }
  // A point with a coordinate that is not finite is left out: one such vertex must not hide the drawing.
  void Add(const AcGePoint2d& p) {
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
    minX = std::min(minX, p.x);
    minY = std::min(minY, p.y);
    maxX = std::max(maxX, p.x);
    maxY = std::max(maxY, p.y);
  }
  void Add(const Box2d& other) {
    if (other.IsEmpty()) return;
    Add(AcGePoint2d(other.minX, other.minY));
    Add(AcGePoint2d(other.maxX, other.maxY));
  }
  bool Contains(const AcGePoint2d& p) const;
  // False when the other one is empty.
  bool Contains(const Box2d& other) const;
  bool Overlaps(const Box2d& other) const {
    return !IsEmpty() && !other.IsEmpty() && other.minX <= maxX && other.maxX >= minX && other.minY <= maxY &&
           other.maxY >= minY;
  }
  // The rectangle with so much more on each side.
  Box2d Grown(double by) const { return {minX - by, minY - by, maxX + by, maxY + by}; }
};

} // namespace ge
