// All points that the curves of a set have in common, each with each. In time that grows with the curves and
// with the pairs that come near each other, not with all pairs.
#pragma once

#include "host/ge/CurveIntersection.h"

namespace entity {

struct CurveCrossing {
  std::size_t first = 0; // indexes of the curves, first below second
  std::size_t second = 0;
  ge::CurveIntersections meetings; // with parameters on the first curve
};

// The pairs that have a point or a stretch in common, by first and then second: what ge::Intersect says of
// every pair, those left out for which it says nothing.
std::vector<CurveCrossing> allCrossings(std::span<const ge::Curve> curves);

// The box over a curve as seen along the z axis, grown by the tolerance. Exact for curves that lie flat, at
// most a diameter too large for arcs that don't. Empty for a curve that is none.
ge::Box2d planBox(const ge::Curve& curve);

} // namespace entity
