// The arbitrary axis algorithm. The bound of 1/64 is part of the file format: near the z axis the helper axis
// changes from z to y.
#include "host/ge/ArbitraryAxis.h"

#include <cmath>

namespace ge {

ObjectAxes ArbitraryAxis(const AcGeVector3d& direction) {
  const ObjectAxes world{AcGeVector3d::kXAxis, AcGeVector3d::kYAxis, AcGeVector3d::kZAxis};
  const double size = direction.length();
  if (!(size > 0.0) || !std::isfinite(size)) return world;
  const AcGeVector3d n = direction / size;
  if (n.x == 0.0 && n.y == 0.0 && n.z == 1.0) return world; // nearly every entity of a drawing
  const double nearZ = 1.0 / 64.0;
  const bool useY = std::fabs(n.x) < nearZ && std::fabs(n.y) < nearZ;
  const AcGeVector3d x = (useY ? AcGeVector3d::kYAxis : AcGeVector3d::kZAxis).crossProduct(n).normal();
  return {x, n.crossProduct(x).normal(), n};
}

} // namespace ge
