// Areas by the shoelace rule with a circular segment added for each arc.
#include "host/ge/CurveArea.h"

#include <cmath>
#include <numbers>

namespace ge {
namespace {

// angle - sin(angle), without the cancellation that leaves no digit of a flat arc's area.
double AngleLessSine(double angle) {
  if (std::fabs(angle) > 0.3) return angle - std::sin(angle);
  const double q = angle * angle;
  return angle * q / 6.0 * (1.0 - q / 20.0 * (1.0 - q / 42.0 * (1.0 - q / 72.0 * (1.0 - q / 110.0))));
}

} // namespace

CurveResult<double> SignedArea(const Curve& curve) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  const auto pieces = curve.Pieces();
  const AcGePoint2d from = pieces.front().start; // also keeps large coordinates out of the products
  double twice = 0.0;
  for (const CurvePiece& piece : pieces) {
    twice += (piece.start - from).crossProduct(piece.end - from);
    if (piece.isArc) twice += piece.arc.radius * piece.arc.radius * AngleLessSine(piece.arc.sweep);
  }
  return twice / 2.0;
}

CurveResult<double> Area(const Curve& curve) {
  auto area = SignedArea(curve);
  area.value = std::fabs(area.value);
  return area;
}

CurveResult<double> CentralAngle(const Curve& curve, const AcGeVector3d& view) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  if (curve.Kind() == CurveKind::kPolyline) return CurveStatus::kNotApplicable;
  if (curve.Kind() == CurveKind::kLine) return 0.0;
  const double sweep = curve.Pieces().front().arc.sweep;
  return curve.Normal().dotProduct(view) < 0.0 ? -sweep : sweep;
}

double BulgeOfAngle(double centralAngle) {
  return std::isfinite(centralAngle) ? std::tan(centralAngle / 4.0) : 0.0;
}

double AngleOfBulge(double bulge) {
  return std::isfinite(bulge) ? 4.0 * std::atan(bulge) : 0.0;
}

} // namespace ge
