#include "host/scene/InfiniteLine.h"

#include <algorithm>
#include <limits>

namespace scene {
namespace {

// Narrows the parameters of a line to those between two values of one coordinate.
bool narrow(double start, double slope, double low, double high, double& from, double& to) {
  if (slope == 0) return start >= low && start <= high;
  double a = (low - start) / slope;
  double b = (high - start) / slope;
  if (a > b) std::swap(a, b);
  from = std::max(from, a);
  to = std::min(to, b);
  return from <= to;
}

} // namespace

std::optional<std::pair<AcGePoint2d, AcGePoint2d>>
CutToBox(const AcGePoint2d& from, const AcGePoint2d& through, bool isRay, const ge::Box2d& box) {
  const AcGeVector2d direction = through - from;
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  double low = isRay ? 0 : -kInfinite;
  double high = kInfinite;
  if (box.IsEmpty() || (direction.x == 0 && direction.y == 0)) return std::nullopt;
  if (!narrow(from.x, direction.x, box.minX, box.maxX, low, high) ||
      !narrow(from.y, direction.y, box.minY, box.maxY, low, high))
    return std::nullopt;
  return std::make_pair(from + direction * low, from + direction * high);
}

} // namespace scene
