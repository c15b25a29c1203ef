#include "host/ge/Box2d.h"

namespace ge {

Box2d Box2d::FromCorners(const AcGePoint2d& a, const AcGePoint2d& b) {
  Box2d box;
  box.Add(a);
  box.Add(b);
  return box;
}

bool Box2d::Contains(const AcGePoint2d& p) const {
  return p.x >= minX && p.x <= maxX && p.y >= minY && p.y <= maxY;
}

bool Box2d::Contains(const Box2d& other) const {
  return !other.IsEmpty() && other.minX >= minX && other.maxX <= maxX && other.minY >= minY &&
         other.maxY <= maxY;
}

} // namespace ge
