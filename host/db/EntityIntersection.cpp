// AcDbEntity::intersectWith, by the curve kernel.
#include "host/db/AcDbCurve.h"
#include "host/db/AcDbPoint.h"
#include "host/db/CurveStatusOf.h"
#include "host/ge/CurveClosest.h"
#include "host/ge/CurveIntersection.h"

#include <optional>

namespace {

// What an entity is to the kernel.
struct Operand {
  std::optional<ge::Curve> curve;
  std::optional<AcGePoint3d> point;

  explicit Operand(const AcDbEntity& entity) {
    if (const auto* own = AcDbCurve::cast(&entity)) {
      ge::Curve geometry;
      if (own->getCurve(geometry) == Acad::eOk) curve = std::move(geometry);
    } else if (const auto* at = AcDbPoint::cast(&entity)) {
      point = at->position();
    }
  }
  explicit operator bool() const { return curve || point; }
};

constexpr ge::ExtendCurves kExtend[] = {ge::ExtendCurves::kNone, ge::ExtendCurves::kFirst,
                                        ge::ExtendCurves::kSecond, ge::ExtendCurves::kBoth};

AcDb::Intersect exchanged(AcDb::Intersect type) {
  if (type == AcDb::kExtendThis) return AcDb::kExtendArg;
  return type == AcDb::kExtendArg ? AcDb::kExtendThis : type;
}

} // namespace

Acad::ErrorStatus AcDbEntity::intersectWith(const AcDbEntity* other, AcDb::Intersect type,
                                            std::vector<AcGePoint3d>& points) const {
  if (!other) return Acad::eNullObjectPointer;
  if (type < AcDb::kOnBothOperands || type > AcDb::kExtendBoth) return Acad::eInvalidInput;
  const Operand first(*this);
  const Operand second(*other);
  if (!first || !second) {
    const auto status = subIntersectWith(*other, type, points);
    return status == Acad::eNotApplicable ? other->subIntersectWith(*this, exchanged(type), points) : status;
  }
  if (first.curve && second.curve) {
    const auto meetings = ge::Intersect(*first.curve, *second.curve, kExtend[type]);
    for (const ge::CurveMeeting& meeting : meetings.points) points.push_back(meeting.point);
    return entity::statusOf(meetings.status);
  }
  if (first.point && second.point) {
    if (first.point->isEqualTo(*second.point)) points.push_back(*first.point);
    return Acad::eOk;
  }
  const ge::Curve& curve = first.curve ? *first.curve : *second.curve;
  const AcGePoint3d& point = first.point ? *first.point : *second.point;
  if (curve.Status() != ge::CurveStatus::kOk) return entity::statusOf(curve.Status());
  const bool extended =
      type == AcDb::kExtendBoth || type == (first.curve ? AcDb::kExtendThis : AcDb::kExtendArg);
  if (ge::IsOnCurve(curve, point, extended)) points.push_back(point);
  return Acad::eOk;
}
