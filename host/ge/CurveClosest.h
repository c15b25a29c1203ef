// The point of a curve that is nearest to a given one, with or without the curve's extension: of a line the
// infinite line, of an arc its circle, of an open polyline the extension of its first and last segment.
#pragma once

#include "host/ge/CurveParameters.h"

#include <optional>

namespace ge {

struct ClosestOnCurve {
  AcGePoint3d point;
  double parameter = 0.0; // outside the curve's range on the extension
  double distance = 0.0;
};

// Of several equally near points the one on the first piece. A piece without a length
// has no extension.
CurveResult<ClosestOnCurve> ClosestPoint(const Curve& curve, const AcGePoint3d& point, bool extended = false);
// Whether the point lies within the tolerance: the intersection of a point and a curve.
bool IsOnCurve(const Curve& curve, const AcGePoint3d& point, bool extended = false);

// How far a piece of the curve reaches. Of an extended polyline the first and the last segment that have a
// length are open.
ReachedPiece Reach(const Curve& curve, std::size_t piece, bool extended);
// The parameter of a fraction of that piece, which may lie on the extension.
double ReachedParameter(const Curve& curve, std::size_t piece, double fraction);
// The first place on the curve itself that is within the tolerance, or the last one.
std::optional<CurvePlace> PlaceOn(const Curve& curve, const AcGePoint3d& point, bool last = false);

} // namespace ge
