// Moving ends, by kind of curve.
#include "host/ge/CurveEnds.h"

#include "host/ge/CurveClosest.h"
#include "host/ge/CurveSplit.h"
#include "host/ge/CurveTolerance.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ge {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

double Magnitude(const AcGePoint3d& p) {
  return std::max({std::fabs(p.x), std::fabs(p.y), std::fabs(p.z)});
}

CurveResult<Curve> MoveLineEnd(const Curve& line, const AcGePoint3d& point, bool start) {
  const CurvePiece& piece = line.Pieces().front();
  const AcGePoint3d& other = start ? line.PieceEnd(0) : line.PieceStart(0);
  const double tolerance = std::max(line.Tolerance(), CurveTolerance(Magnitude(point)));
  if (!(piece.length > 0.0) || point.distanceTo(other) <= tolerance) return CurveStatus::kDegenerate;
  const double fraction = FractionAt(piece, line.Frame().ToPlane(point));
  if (start ? fraction > 1.0 : fraction < 0.0) return CurveStatus::kOutOfRange;
  return start ? Curve::Line(point, other) : Curve::Line(other, point);
}

CurveResult<Curve> MoveArcEnd(const Curve& curve, const AcGePoint3d& point, bool start) {
  const CurvePiece& piece = curve.Pieces().front();
  const AcGePoint3d other = start ? curve.PieceEnd(0) : curve.PieceStart(0);
  const double tolerance = std::max(curve.Tolerance(), CurveTolerance(Magnitude(point)));
  if (point.distanceTo(other) <= tolerance) return CurveStatus::kDegenerate;
  PlanarArc arc = piece.arc;
  const double angle = (curve.Frame().ToPlane(point) - arc.center).angle();
  arc.sweep = NormalizeAngle(start ? arc.startAngle + arc.sweep - angle : angle - arc.startAngle);
  if (start) arc.startAngle = angle;
  if (!(arc.sweep > 0.0)) return CurveStatus::kDegenerate;
  const double offset = piece.magnitude; // an upper bound will do
  return Curve::OfPieces(CurveKind::kArc, curve.Frame(), {ArcPiece(arc, offset)}, false);
}

// The piece that is left of an end segment which now begins, or ends, at the point.
CurvePiece Replaced(const CurvePiece& piece, const AcGePoint2d& p, bool start, double fraction) {
  const AcGePoint2d& from = start ? p : piece.start;
  const AcGePoint2d& to = start ? piece.end : p;
  if (!piece.isArc) return BulgePiece(from, to, 0.0, piece.magnitude);
  // Beyond the far end of an arc the way on leads round its circle to the near one.
  double sweep = std::fabs(piece.arc.sweep);
  if (!start)
    sweep *= fraction;
  else if (fraction > 1.0)
    sweep += kTurn - sweep * fraction;
  else
    sweep *= 1.0 - fraction;
  return BulgePiece(from, to, std::tan(std::copysign(sweep, piece.arc.sweep) / 4.0), piece.magnitude);
}

CurveResult<Curve> CutPolyline(const Curve& curve, const CurvePlace& place, const AcGePoint2d& p,
                               bool start) {
  const std::size_t count = curve.Pieces().size();
  const Curve open = Curve::OfPieces(CurveKind::kPolyline, curve.Frame(),
                                     {curve.Pieces().begin(), curve.Pieces().end()}, false);
  auto part = start ? PartBetween(open, place, {count - 1, 1.0}) : PartBetween(open, {0, 0.0}, place);
  if (!part) return part.status;
  std::vector<PolylineVertex> vertices = part.value.Vertices();
  (start ? vertices.front() : vertices.back()).point = p;
  return Curve::Polyline(vertices, false, curve.Normal(), curve.Elevation());
}

CurveResult<Curve> ExtendPolyline(const Curve& curve, const AcGePoint2d& p, bool start, double tolerance) {
  const auto pieces = curve.Pieces();
  for (std::size_t n = 0; n < pieces.size(); ++n) {
    const std::size_t i = start ? n : pieces.size() - 1 - n;
    if (!(pieces[i].length > 0.0)) continue; // vertices that coincide at the end move with it
    const ReachedPiece reached{&pieces[i], start, !start};
    if (DistanceTo(reached, p) > tolerance) return CurveStatus::kNotOnCurve;
    std::vector<PolylineVertex> vertices = curve.Vertices();
    const CurvePiece moved = Replaced(pieces[i], p, start, FractionAt(pieces[i], p));
    vertices[i].bulge = moved.bulge;
    (start ? vertices[i] : vertices[i + 1]).point = p;
    if (start)
      vertices.erase(vertices.begin(), vertices.begin() + static_cast<std::ptrdiff_t>(i));
    else
      vertices.resize(i + 2);
    return Curve::Polyline(vertices, false, curve.Normal(), curve.Elevation());
  }
  return CurveStatus::kDegenerate;
}

CurveResult<Curve> MovePolylineEnd(const Curve& curve, const AcGePoint3d& point, bool start) {
  const AcGePoint2d p = curve.Frame().ToPlane(point);
  if (const auto place = PlaceOn(curve, point, !start)) return CutPolyline(curve, *place, p, start);
  const double tolerance = std::max(curve.Tolerance(), CurveTolerance(Magnitude(point)));
  if (curve.IsClosed() || std::fabs(curve.Frame().Height(point)) > tolerance) return CurveStatus::kNotOnCurve;
  return ExtendPolyline(curve, p, start, tolerance);
}

CurveResult<Curve> MoveTo(const Curve& curve, const AcGePoint3d& point, bool start) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  if (curve.Kind() == CurveKind::kCircle) return CurveStatus::kNotApplicable;
  const auto closest = ClosestPoint(curve, point, true);
  if (!closest) return closest.status;
  if (curve.Pieces().size() == 1 && !(curve.Pieces().front().length > 0.0)) return CurveStatus::kDegenerate;
  if (curve.Kind() == CurveKind::kPolyline) return MovePolylineEnd(curve, point, start);
  if (!IsOnCurve(curve, point, true)) return CurveStatus::kNotOnCurve;
  return curve.Kind() == CurveKind::kLine ? MoveLineEnd(curve, point, start)
                                          : MoveArcEnd(curve, point, start);
}

} // namespace

CurveResult<Curve> MoveStart(const Curve& curve, const AcGePoint3d& point) {
  return MoveTo(curve, point, true);
}

CurveResult<Curve> MoveEnd(const Curve& curve, const AcGePoint3d& point) {
  return MoveTo(curve, point, false);
}

} // namespace ge
