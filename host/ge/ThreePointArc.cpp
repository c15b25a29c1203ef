// Circumcentre and sweep of three points.
#include "host/ge/ThreePointArc.h"

#include "host/ge/CurveTolerance.h"

#include <algorithm>
#include <cmath>

namespace ge {
namespace {

double Magnitude(const AcGePoint3d& p) {
  return std::max({std::fabs(p.x), std::fabs(p.y), std::fabs(p.z)});
}

} // namespace

CurveResult<Curve> ArcThroughPoints(const AcGePoint3d& first, const AcGePoint3d& second,
                                    const AcGePoint3d& third) {
  const double magnitude = std::max({Magnitude(first), Magnitude(second), Magnitude(third)});
  for (const AcGePoint3d& p : {first, second, third}) {
    if (!(Magnitude(p) <= kLargestNumber) || std::isnan(p.y) || std::isnan(p.z))
      return CurveStatus::kNotFinite;
  }
  const AcGeVector3d chord = third - first;
  const double length = chord.length();
  const double tolerance = CurveTolerance(magnitude);
  if (length <= tolerance || second.distanceTo(first) <= tolerance || second.distanceTo(third) <= tolerance)
    return CurveStatus::kDegenerate;
  // In the plane of the points, with the chord as x axis and the second point below it, so that the way from
  // first to third is counter-clockwise.
  const AcGeVector3d x = chord / length;
  const CurveFrame above = CurveFrame::Through(first, x, second);
  const double height = above.ToPlane(second).y;
  if (height <= tolerance) return CurveStatus::kDegenerate;
  const double along = above.ToPlane(second).x;
  // Equal distances from (0, 0), (length, 0) and (along, -height).
  const double y = (along * (length - along) / height - height) / 2.0;
  const CurveFrame plane{first, above.xAxis, -above.yAxis, -above.normal};
  const AcGePoint3d center = plane.ToWorld({length / 2.0, y});
  const double radius = std::hypot(length / 2.0, y);
  // Half the sweep is the angle between the way down from the centre and the way to the third point.
  const double half = std::atan2(length / 2.0, y);
  const CurveFrame axes = CurveFrame::OfNormal(plane.normal, 0.0);
  const AcGeVector3d out = -(plane.xAxis * (length / 2.0)) - plane.yAxis * y;
  const double start = AcGeVector2d(out.dotProduct(axes.xAxis), out.dotProduct(axes.yAxis)).angle();
  Curve arc = Curve::Arc(center, plane.normal, radius, start, start + 2.0 * half);
  if (arc.Status() != CurveStatus::kOk) return arc.Status();
  return arc;
}

} // namespace ge
