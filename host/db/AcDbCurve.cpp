#include "host/db/AcDbCurve.h"

#include "host/db/AcDbArc.h"
#include "host/db/CurveStatusOf.h"
#include "host/ge/CurveArea.h"
#include "host/ge/CurveClosest.h"
#include "host/ge/CurveEnds.h"
#include "host/ge/CurveParameters.h"
#include "host/ge/CurveSplit.h"
#include "host/ge/CurveTransform.h"

#include <memory>

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbCurve, AcDbEntity)

namespace {

// Asks the kernel about the curve and hands the answer over when there is one.
template <typename Question, typename Answer>
Acad::ErrorStatus ask(const AcDbCurve& entity, Answer& answer, Question question) {
  ge::Curve curve;
  if (const auto status = entity.getCurve(curve); status != Acad::eOk) return status;
  const auto result = question(curve);
  if (result) answer = result.value;
  return entity::statusOf(result.status);
}

using entity::statusOf;

} // namespace

Acad::ErrorStatus AcDbCurve::getCurve(ge::Curve&) const {
  return Acad::eNotApplicable;
}

Acad::ErrorStatus AcDbCurve::setCurve(const ge::Curve&) {
  return Acad::eNotApplicable;
}

Acad::ErrorStatus AcDbCurve::getStartPoint(AcGePoint3d& point) const {
  return ask(*this, point, [](const ge::Curve& curve) { return ge::StartPoint(curve); });
}

Acad::ErrorStatus AcDbCurve::getEndPoint(AcGePoint3d& point) const {
  return ask(*this, point, [](const ge::Curve& curve) { return ge::EndPoint(curve); });
}

Acad::ErrorStatus AcDbCurve::getStartParam(double& parameter) const {
  return ask(*this, parameter, [](const ge::Curve& curve) { return ge::StartParameter(curve); });
}

Acad::ErrorStatus AcDbCurve::getEndParam(double& parameter) const {
  return ask(*this, parameter, [](const ge::Curve& curve) { return ge::EndParameter(curve); });
}

Acad::ErrorStatus AcDbCurve::getPointAtParam(double parameter, AcGePoint3d& point) const {
  return ask(*this, point, [&](const ge::Curve& curve) { return ge::PointAtParameter(curve, parameter); });
}

Acad::ErrorStatus AcDbCurve::getParamAtPoint(const AcGePoint3d& point, double& parameter) const {
  return ask(*this, parameter, [&](const ge::Curve& curve) { return ge::ParameterAtPoint(curve, point); });
}

Acad::ErrorStatus AcDbCurve::getDistAtParam(double parameter, double& distance) const {
  return ask(*this, distance,
             [&](const ge::Curve& curve) { return ge::DistanceAtParameter(curve, parameter); });
}

Acad::ErrorStatus AcDbCurve::getParamAtDist(double distance, double& parameter) const {
  return ask(*this, parameter,
             [&](const ge::Curve& curve) { return ge::ParameterAtDistance(curve, distance); });
}

Acad::ErrorStatus AcDbCurve::getDistAtPoint(const AcGePoint3d& point, double& distance) const {
  return ask(*this, distance, [&](const ge::Curve& curve) { return ge::DistanceAtPoint(curve, point); });
}

Acad::ErrorStatus AcDbCurve::getPointAtDist(double distance, AcGePoint3d& point) const {
  return ask(*this, point, [&](const ge::Curve& curve) { return ge::PointAtDistance(curve, distance); });
}

Acad::ErrorStatus AcDbCurve::getFirstDeriv(double parameter, AcGeVector3d& derivative) const {
  return ask(*this, derivative,
             [&](const ge::Curve& curve) { return ge::FirstDerivative(curve, parameter); });
}

Acad::ErrorStatus AcDbCurve::getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& derivative) const {
  double parameter = 0;
  const auto status = getParamAtPoint(point, parameter);
  return status == Acad::eOk ? getFirstDeriv(parameter, derivative) : status;
}

Acad::ErrorStatus AcDbCurve::getClosestPointTo(const AcGePoint3d& point, AcGePoint3d& onCurve,
                                               bool extend) const {
  ge::ClosestOnCurve closest;
  const auto status =
      ask(*this, closest, [&](const ge::Curve& curve) { return ge::ClosestPoint(curve, point, extend); });
  if (status == Acad::eOk) onCurve = closest.point;
  return status;
}

Acad::ErrorStatus AcDbCurve::getArea(double& area) const {
  return ask(*this, area, [](const ge::Curve& curve) { return ge::Area(curve); });
}

Acad::ErrorStatus AcDbCurve::getSplitCurves(const std::vector<double>& parameters,
                                            std::vector<AcDbCurve*>& parts) const {
  std::vector<ge::Curve> pieces;
  auto status =
      ask(*this, pieces, [&](const ge::Curve& curve) { return ge::SplitAtParameters(curve, parameters); });
  if (status != Acad::eOk) return status;
  std::vector<std::unique_ptr<AcDbCurve>> made;
  for (const ge::Curve& piece : pieces) {
    std::unique_ptr<AcDbCurve> part(AcDbCurve::cast(clone()));
    if (!part) return Acad::eNotApplicable;
    status = part->setCurve(piece);
    if (status == Acad::eNotThatKindOfClass && piece.Kind() == ge::CurveKind::kArc) {
      auto arc = std::make_unique<AcDbArc>();
      status = arc->setCurve(piece);
      if (status == Acad::eOk) status = arc->setPropertiesFrom(part.get());
      part = std::move(arc);
    }
    if (status != Acad::eOk) return status;
    made.push_back(std::move(part));
  }
  for (auto& part : made) parts.push_back(part.release());
  return Acad::eOk;
}

Acad::ErrorStatus AcDbCurve::getSplitCurves(const std::vector<AcGePoint3d>& points,
                                            std::vector<AcDbCurve*>& parts) const {
  std::vector<double> parameters(points.size());
  for (std::size_t i = 0; i < points.size(); ++i)
    if (const auto status = getParamAtPoint(points[i], parameters[i]); status != Acad::eOk) return status;
  return getSplitCurves(parameters, parts);
}

Acad::ErrorStatus AcDbCurve::moveStartTo(const AcGePoint3d& point) {
  ge::Curve moved;
  const auto status = ask(*this, moved, [&](const ge::Curve& curve) { return ge::MoveStart(curve, point); });
  return status == Acad::eOk ? setCurve(moved) : status;
}

Acad::ErrorStatus AcDbCurve::moveEndTo(const AcGePoint3d& point) {
  ge::Curve moved;
  const auto status = ask(*this, moved, [&](const ge::Curve& curve) { return ge::MoveEnd(curve, point); });
  return status == Acad::eOk ? setCurve(moved) : status;
}

Acad::ErrorStatus AcDbCurve::extend(bool start, const AcGePoint3d& toPoint) {
  return start ? moveStartTo(toPoint) : moveEndTo(toPoint);
}

Acad::ErrorStatus AcDbCurve::reverseCurve() {
  ge::Curve reversed;
  const auto status = ask(*this, reversed, [](const ge::Curve& curve) { return ge::Reversed(curve); });
  return status == Acad::eOk ? setCurve(reversed) : status;
}

Acad::ErrorStatus AcDbCurve::transformBy(const AcGeMatrix3d& matrix) {
  ge::Curve moved;
  const auto status =
      ask(*this, moved, [&](const ge::Curve& curve) { return ge::Transformed(curve, matrix); });
  return status == Acad::eOk ? setCurve(moved) : status;
}
