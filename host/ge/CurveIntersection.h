// The points that two curves have in common.
#pragma once

#include "host/ge/Curve.h"

namespace ge {

// Which curve counts with its extension: a line as the infinite line, an arc as its circle, an open polyline
// with its first and last segment extended.
enum class ExtendCurves { kNone, kFirst, kSecond, kBoth };

struct CurveMeeting {
  AcGePoint3d point;
  double parameter = 0.0; // on the first curve; outside its range on its extension
};

struct CurveIntersections {
  CurveStatus status = CurveStatus::kOk; // that of the curve that is not usable; no points then
  // In the order of the first curve, no two within the tolerance of each other.
  std::vector<CurveMeeting> points;
  // Whether the curves run along each other somewhere. Of such a stretch its ends are points; one without
  // ends, as that of two equal circles, has none.
  bool overlap = false;
};

// Curves that do not touch have no points and kOk. A point that is an end or a vertex of either curve within
// the tolerance is returned as that very point. Curves in different planes meet where they do in space.
CurveIntersections Intersect(const Curve& first, const Curve& second,
                             ExtendCurves extend = ExtendCurves::kNone);

} // namespace ge
