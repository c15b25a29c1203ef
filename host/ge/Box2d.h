// An axis-parallel rectangle: the extents of a shape in the plane, or a selection window. It owns its border.
#pragma once

#include "host/ge/AcGePoint2d.h"

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
  void Add(const AcGePoint2d& p);
  void Add(const Box2d& other);
  bool Contains(const AcGePoint2d& p) const;
  // False when the other one is empty.
  bool Contains(const Box2d& other) const;
  bool Overlaps(const Box2d& other) const;
};

} // namespace ge
