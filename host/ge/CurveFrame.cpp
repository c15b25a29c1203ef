// Planes of curves, from a normal or from the line in it.
#include "host/ge/CurveFrame.h"

#include "host/ge/ArbitraryAxis.h"

namespace ge {
namespace {

bool Same(const AcGeVector3d& a, const AcGeVector3d& b) {
  return a.x == b.x && a.y == b.y && a.z == b.z;
}

CurveFrame Along(const AcGePoint3d& origin, const AcGeVector3d& x, const AcGeVector3d& y) {
  return {origin, x, y, x.crossProduct(y)};
}

} // namespace

CurveFrame CurveFrame::OfNormal(const AcGeVector3d& normal, double elevation) {
  const ObjectAxes axes = ArbitraryAxis(normal);
  return {AcGePoint3d::kOrigin + axes.normal * elevation, axes.xAxis, axes.yAxis, axes.normal};
}

CurveFrame CurveFrame::OfLine(const AcGePoint3d& start, const AcGePoint3d& end) {
  const AcGeVector3d along = end - start;
  if (along.z == 0.0) return OfNormal(AcGeVector3d::kZAxis, start.z);
  const AcGeVector3d direction = along / along.length();
  const ObjectAxes axes = ArbitraryAxis(direction);
  return Along(start, direction, axes.xAxis);
}

CurveFrame CurveFrame::Through(const AcGePoint3d& start, const AcGeVector3d& direction,
                               const AcGePoint3d& other) {
  const AcGeVector3d aside = other - start - direction * (other - start).dotProduct(direction);
  const double size = aside.length();
  if (!(size > 0.0)) return Along(start, direction, ArbitraryAxis(direction).xAxis);
  // Made perpendicular a second time: the first difference may have lost its digits. What then has lost its
  // length as well was rounding from the start.
  AcGeVector3d y = aside / size;
  y -= direction * y.dotProduct(direction);
  const double rest = y.length();
  return Along(start, direction, rest > 0.5 ? y / rest : ArbitraryAxis(direction).xAxis);
}

AcGePoint2d CurveFrame::ToPlane(const AcGePoint3d& p) const {
  const AcGeVector3d v = p - origin;
  return {v.dotProduct(xAxis), v.dotProduct(yAxis)};
}

bool CurveFrame::SharesAxes(const CurveFrame& other) const {
  const AcGeVector3d between = other.origin - origin;
  return Same(normal, other.normal) && Same(xAxis, other.xAxis) && Same(yAxis, other.yAxis) &&
         between.dotProduct(xAxis) == 0.0 && between.dotProduct(yAxis) == 0.0;
}

} // namespace ge
