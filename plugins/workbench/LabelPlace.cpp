#include "plugins/workbench/LabelPlace.h"

#include "host/db/AcDbCurve.h"

#include <cmath>
#include <numbers>

namespace workbench {
namespace {

constexpr double kSlack = 1e-9; // radians; a line drawn upright is upright in spite of the last digits

AcGePoint3d MiddleOf(const AcDbCurve& curve) {
  AcGePoint3d point;
  double end = 0;
  double length = 0;
  curve.getStartPoint(point);
  if (curve.getEndParam(end) == Acad::eOk && curve.getDistAtParam(end, length) == Acad::eOk)
    curve.getPointAtDist(length / 2, point);
  return point;
}

} // namespace

double ReadingDirection(double direction) {
  double angle = std::remainder(direction, 2 * std::numbers::pi);
  if (angle > std::numbers::pi / 2 + kSlack) angle -= std::numbers::pi;
  if (angle <= -std::numbers::pi / 2 + kSlack) angle += std::numbers::pi;
  return angle;
}

LabelPlace PlaceAlong(const AcDbCurve& curve, const std::optional<AcGePoint3d>& wished, double gap,
                      double height) {
  AcGePoint3d foot = MiddleOf(curve);
  if (wished) curve.getClosestPointTo(AcGePoint3d(wished->x, wished->y, foot.z), foot);
  AcGeVector3d tangent(1, 0, 0);
  curve.getFirstDeriv(foot, tangent);
  LabelPlace place;
  place.rotation = ReadingDirection(std::atan2(tangent.y, tangent.x));
  const AcGeVector3d up(-std::sin(place.rotation), std::cos(place.rotation), 0);
  const bool isBelow = wished && (wished->x - foot.x) * up.x + (wished->y - foot.y) * up.y < 0;
  place.point = foot + up * (isBelow ? -gap - height : gap);
  return place;
}

} // namespace workbench
