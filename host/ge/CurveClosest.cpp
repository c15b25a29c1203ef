// Nearest points piece by piece. A point off the curve's plane is first projected on it.
#include "host/ge/CurveClosest.h"

#include "host/ge/CurveTolerance.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ge {
namespace {

bool Finite(const AcGePoint3d& p) {
  return std::fabs(p.x) <= kLargestNumber && std::fabs(p.y) <= kLargestNumber &&
         std::fabs(p.z) <= kLargestNumber;
}

double Magnitude(const AcGePoint3d& p) {
  return std::max({std::fabs(p.x), std::fabs(p.y), std::fabs(p.z)});
}

// The first and last piece with a length; both 0 where none has.
std::size_t FirstWithLength(const Curve& curve) {
  const auto pieces = curve.Pieces();
  std::size_t i = 0;
  while (i + 1 < pieces.size() && !(pieces[i].length > 0.0)) ++i;
  return i;
}

std::size_t LastWithLength(const Curve& curve) {
  const auto pieces = curve.Pieces();
  std::size_t i = pieces.size() - 1;
  while (i > 0 && !(pieces[i].length > 0.0)) --i;
  return i;
}

// An end within the tolerance is that end.
double AtEnd(const CurvePiece& piece, double fraction, const AcGePoint2d& p, double tolerance) {
  if (p.distanceTo(piece.start) <= tolerance) return 0.0;
  return p.distanceTo(piece.end) <= tolerance ? 1.0 : fraction;
}

} // namespace

ReachedPiece Reach(const Curve& curve, std::size_t piece, bool extended) {
  ReachedPiece reached{&curve.Pieces()[piece]};
  if (!extended || curve.IsClosed()) return reached;
  reached.openStart = piece == FirstWithLength(curve);
  reached.openEnd = piece == LastWithLength(curve);
  return reached;
}

double ReachedParameter(const Curve& curve, std::size_t piece, double fraction) {
  if (curve.Kind() != CurveKind::kPolyline || (fraction >= 0.0 && fraction <= 1.0))
    return ParameterOf(curve, {piece, fraction});
  const CurvePiece& p = curve.Pieces()[piece];
  const double count = static_cast<double>(curve.Pieces().size());
  // The circle of a first arc is run through backwards. Vertices that coincide at an end count as the end.
  if (p.isArc && piece != LastWithLength(curve)) fraction -= 2.0 * std::numbers::pi / std::fabs(p.arc.sweep);
  return fraction < 0.0 ? fraction : count - 1.0 + fraction;
}

CurveResult<ClosestOnCurve> ClosestPoint(const Curve& curve, const AcGePoint3d& point, bool extended) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  if (!Finite(point)) return CurveStatus::kNotFinite;
  const auto pieces = curve.Pieces();
  const AcGePoint2d p = curve.Frame().ToPlane(point);
  CurvePlace best;
  double least = 0.0;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const ReachedPiece reached = Reach(curve, i, extended);
    const double distance = DistanceTo(reached, p);
    if (i > 0 && !(distance < least)) continue;
    least = distance;
    best = {i, NearestFraction(reached, p)};
  }
  ClosestOnCurve closest;
  closest.point = curve.PieceWorldPoint(best.piece, best.fraction);
  closest.parameter = IsLoneVertex(curve) ? 0.0 : ReachedParameter(curve, best.piece, best.fraction);
  closest.distance = point.distanceTo(closest.point);
  return closest;
}

bool IsOnCurve(const Curve& curve, const AcGePoint3d& point, bool extended) {
  const auto closest = ClosestPoint(curve, point, extended);
  if (!closest) return false;
  return closest.value.distance <= std::max(curve.Tolerance(), CurveTolerance(Magnitude(point)));
}

std::optional<CurvePlace> PlaceOn(const Curve& curve, const AcGePoint3d& point, bool last) {
  if (curve.Status() != CurveStatus::kOk || !Finite(point)) return std::nullopt;
  const auto pieces = curve.Pieces();
  const AcGePoint2d p = curve.Frame().ToPlane(point);
  const double height = curve.Frame().Height(point);
  std::optional<CurvePlace> found;
  double least = 0.0;
  for (std::size_t n = 0; n < pieces.size(); ++n) {
    const std::size_t i = last ? pieces.size() - 1 - n : n;
    const double tolerance = CurveTolerance(std::max(pieces[i].magnitude, Magnitude(point)));
    const ReachedPiece reached{&pieces[i]};
    const double distance = std::hypot(DistanceTo(reached, p), height);
    if (distance > tolerance) {
      if (found) break; // the pieces that meet at one place have been seen
      continue;
    }
    if (found && !(distance < least)) break;
    double fraction = AtEnd(pieces[i], NearestFraction(reached, p), p, tolerance);
    if (last && p.distanceTo(pieces[i].end) <= tolerance) fraction = 1.0;
    found = CurvePlace{i, fraction};
    least = distance;
  }
  return found;
}

CurveResult<double> ParameterAtPoint(const Curve& curve, const AcGePoint3d& point) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  if (!Finite(point)) return CurveStatus::kNotFinite;
  const auto place = PlaceOn(curve, point);
  if (!place) return CurveStatus::kNotOnCurve;
  return IsLoneVertex(curve) ? 0.0 : ParameterOf(curve, *place);
}

CurveResult<double> DistanceAtPoint(const Curve& curve, const AcGePoint3d& point) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  if (!Finite(point)) return CurveStatus::kNotFinite;
  const auto place = PlaceOn(curve, point);
  if (!place) return CurveStatus::kNotOnCurve;
  return DistanceOf(curve, *place);
}

} // namespace ge
