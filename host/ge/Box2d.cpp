// Growing and comparing rectangles. Comparisons are written so that what is not a number is never inside.
#include "host/ge/Box2d.h"

#include <algorithm>
#include <cmath>

namespace ge {

Box2d Box2d::FromCorners(const AcGePoint2d& a, const AcGePoint2d& b) {
  Box2d box;
  box.Add(a);
  box.Add(b);
  return box;
}

void Box2d::Add(const AcGePoint2d& p) {
  if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
  minX = std::min(minX, p.x);
  minY = std::min(minY, p.y);
  maxX = std::max(maxX, p.x);
  maxY = std::max(maxY, p.y);
}

void Box2d::Add(const Box2d& other) {
  if (other.IsEmpty()) return;
  Add(AcGePoint2d(other.minX, other.minY));
  Add(AcGePoint2d(other.maxX, other.maxY));
}

bool Box2d::Contains(const AcGePoint2d& p) const {
  return p.x >= minX && p.x <= maxX && p.y >= minY && p.y <= maxY;
}

bool Box2d::Contains(const Box2d& other) const {
  return !other.IsEmpty() && other.minX >= minX && other.maxX <= maxX && other.minY >= minY &&
         other.maxY <= maxY;
}

bool Box2d::Overlaps(const Box2d& other) const {
  return !IsEmpty() && !other.IsEmpty() && other.minX <= maxX && other.maxX >= minX && other.minY <= maxY &&
         other.maxY >= minY;
}

} // namespace ge
