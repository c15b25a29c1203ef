// Parameters, distances and points, each turned into a place on a piece and back.
#include "host/ge/CurveParameters.h"

#include "host/ge/CurveTolerance.h"

#include <algorithm>
#include <cmath>

namespace ge {
namespace {

// How many parameters one whole piece takes.
double ParametersPerPiece(const Curve& curve) {
  const CurvePiece& piece = curve.Pieces().front();
  if (curve.Kind() == CurveKind::kPolyline) return 1.0;
  return curve.Kind() == CurveKind::kLine ? piece.length : piece.arc.sweep;
}

double FirstParameter(const Curve& curve) {
  return curve.Kind() == CurveKind::kArc ? curve.Pieces().front().arc.startAngle : 0.0;
}

double PieceCount(const Curve& curve) {
  return IsLoneVertex(curve) ? 0.0 : static_cast<double>(curve.Pieces().size());
}

AcGePoint3d WorldPoint(const Curve& curve, const CurvePlace& place) {
  return curve.PieceWorldPoint(place.piece, place.fraction);
}

} // namespace

double ParameterOf(const Curve& curve, const CurvePlace& place) {
  return FirstParameter(curve) +
         (static_cast<double>(place.piece) + place.fraction) * ParametersPerPiece(curve);
}

double DistanceOf(const Curve& curve, const CurvePlace& place) {
  const auto pieces = curve.Pieces();
  double distance = 0.0;
  for (std::size_t i = 0; i < place.piece; ++i) distance += pieces[i].length;
  return distance + place.fraction * pieces[place.piece].length;
}

CurveResult<CurvePlace> PlaceAtParameter(const Curve& curve, double parameter) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  if (!std::isfinite(parameter)) return CurveStatus::kNotFinite;
  const auto pieces = curve.Pieces();
  const double perPiece = ParametersPerPiece(curve);
  const double whole = PieceCount(curve) * perPiece;
  const double past = parameter - FirstParameter(curve);
  const double beyond = std::max(-past, past - whole);
  const CurvePiece& last = past < 0.0 ? pieces.front() : pieces.back();
  // A piece without a length has nothing to measure the excess by but the number itself.
  const double excess = last.length > 0.0 && perPiece > 0.0 ? beyond / perPiece * last.length : beyond;
  if (excess > CurveTolerance(last.magnitude)) return CurveStatus::kOutOfRange;
  if (past <= 0.0 || !(whole > 0.0)) return CurvePlace{};
  if (past >= whole) return CurvePlace{pieces.size() - 1, 1.0};
  const double index = std::floor(past / perPiece);
  const double piece = std::min(index, static_cast<double>(pieces.size() - 1));
  return CurvePlace{static_cast<std::size_t>(piece), past / perPiece - piece};
}

CurveResult<CurvePlace> PlaceAtDistance(const Curve& curve, double distance) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  if (!std::isfinite(distance)) return CurveStatus::kNotFinite;
  const auto pieces = curve.Pieces();
  if (distance < 0.0)
    return distance < -curve.Tolerance() ? CurveResult<CurvePlace>(CurveStatus::kOutOfRange) : CurvePlace{};
  double rest = distance;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (rest < pieces[i].length) return CurvePlace{i, rest / pieces[i].length};
    rest -= pieces[i].length;
  }
  if (rest > curve.Tolerance()) return CurveStatus::kOutOfRange;
  return CurvePlace{pieces.size() - 1, 1.0};
}

CurveResult<AcGePoint3d> StartPoint(const Curve& curve) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  return curve.PieceStart(0);
}

CurveResult<AcGePoint3d> EndPoint(const Curve& curve) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  return curve.PieceEnd(curve.Pieces().size() - 1);
}

CurveResult<double> StartParameter(const Curve& curve) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  return FirstParameter(curve);
}

CurveResult<double> EndParameter(const Curve& curve) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  return FirstParameter(curve) + PieceCount(curve) * ParametersPerPiece(curve);
}

CurveResult<double> Length(const Curve& curve) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  return DistanceOf(curve, {curve.Pieces().size() - 1, 1.0});
}

CurveResult<AcGePoint3d> PointAtParameter(const Curve& curve, double parameter) {
  const auto place = PlaceAtParameter(curve, parameter);
  if (!place) return place.status;
  return WorldPoint(curve, place.value);
}

CurveResult<AcGePoint3d> PointAtDistance(const Curve& curve, double distance) {
  const auto place = PlaceAtDistance(curve, distance);
  if (!place) return place.status;
  return WorldPoint(curve, place.value);
}

CurveResult<double> DistanceAtParameter(const Curve& curve, double parameter) {
  const auto place = PlaceAtParameter(curve, parameter);
  if (!place) return place.status;
  return DistanceOf(curve, place.value);
}

CurveResult<double> ParameterAtDistance(const Curve& curve, double distance) {
  const auto place = PlaceAtDistance(curve, distance);
  if (!place) return place.status;
  return IsLoneVertex(curve) ? 0.0 : ParameterOf(curve, place.value);
}

CurveResult<AcGeVector3d> FirstDerivative(const Curve& curve, double parameter) {
  const auto place = PlaceAtParameter(curve, parameter);
  if (!place) return place.status;
  const CurvePiece& piece = curve.Pieces()[place.value.piece];
  if (!(piece.length > 0.0)) return CurveStatus::kDegenerate;
  if (curve.Kind() == CurveKind::kLine) {
    const AcGeVector3d along = curve.PieceEnd(0) - curve.PieceStart(0);
    return along / along.length();
  }
  const AcGeVector2d byFraction = DerivativeAt(piece, place.value.fraction);
  const CurveFrame& frame = curve.Frame();
  return (frame.xAxis * byFraction.x + frame.yAxis * byFraction.y) / ParametersPerPiece(curve);
}

} // namespace ge
