// Construction of pieces, places on them and distances from them.
#include "host/ge/CurvePiece.h"

#include "host/ge/CurveTolerance.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ge {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;
// Directions closer than this differ by rounding alone.
constexpr double kAngleRounding = 16.0 * std::numeric_limits<double>::epsilon();

double Magnitude(const AcGePoint2d& p) {
  return std::max(std::fabs(p.x), std::fabs(p.y));
}

double AtLeastSmallest(double length) {
  return length >= kSmallestLength ? length : 0.0;
}

void SetArcMeasures(CurvePiece& piece, double offset) {
  piece.length = AtLeastSmallest(piece.arc.radius * AtLeastSmallest(std::fabs(piece.arc.sweep)));
  piece.magnitude = offset + Magnitude(piece.arc.center) + piece.arc.radius;
}

// Without the care of hypot, which takes the most of a distance's time: coordinates are below kLargestNumber,
// and what underflows is far below any tolerance.
double Length(const AcGeVector2d& v) {
  return std::sqrt(v.x * v.x + v.y * v.y);
}

// From the arc's start to the direction of a vector out of its centre, the way the arc runs, in [0, 2 pi).
double Turned(const CurvePiece& piece, const AcGeVector2d& v) {
  const AcGeVector2d s = piece.start - piece.arc.center;
  double angle = std::atan2(s.crossProduct(v), s.dotProduct(v));
  if (piece.arc.sweep < 0.0) angle = -angle;
  if (angle < 0.0) angle += kTurn;
  return angle < kTurn - kAngleRounding ? angle : 0.0;
}

} // namespace

bool CurvePiece::IsFullTurn() const {
  return isArc && std::fabs(arc.sweep) >= kTurn - kAngleRounding;
}

CurvePiece StraightPiece(const AcGePoint2d& start, const AcGePoint2d& end, double offset) {
  CurvePiece piece;
  piece.start = start;
  piece.end = end;
  piece.length = AtLeastSmallest(start.distanceTo(end));
  if (piece.length > 0.0) piece.along = (end - start) / piece.length;
  piece.magnitude = offset + std::max(Magnitude(start), Magnitude(end));
  piece.box = Box2d::FromCorners(start, end);
  return piece;
}

CurvePiece ArcPiece(const PlanarArc& arc, double offset) {
  CurvePiece piece;
  piece.isArc = true;
  piece.arc = arc;
  piece.bulge = std::tan(arc.sweep / 4.0);
  piece.start = arc.PointAt(arc.startAngle);
  piece.end = piece.IsFullTurn() ? piece.start : arc.PointAt(arc.startAngle + arc.sweep);
  SetArcMeasures(piece, offset);
  piece.box = ArcExtents(arc);
  return piece;
}

CurvePiece BulgePiece(const AcGePoint2d& start, const AcGePoint2d& end, double bulge, double offset) {
  const auto arc = ArcFromBulge(start, end, bulge);
  CurvePiece piece = StraightPiece(start, end, offset);
  piece.bulge = std::isfinite(bulge) ? bulge : 0.0;
  if (!arc || arc->radius > kLargestNumber) return piece;
  piece.along = {};
  piece.isArc = true;
  piece.arc = *arc;
  SetArcMeasures(piece, offset);
  piece.box.Add(ArcExtents(*arc));
  return piece;
}

AcGePoint2d PointAt(const CurvePiece& piece, double fraction) {
  if (fraction == 0.0) return piece.start;
  if (fraction == 1.0) return piece.end;
  if (!piece.isArc) {
    // From the nearer end, so that the far one's rounding is not magnified.
    if (fraction > 0.5) return piece.end - (piece.end - piece.start) * (1.0 - fraction);
    return piece.start + (piece.end - piece.start) * fraction;
  }
  AcGeVector2d out = piece.start - piece.arc.center;
  return piece.arc.center + out.rotateBy(piece.arc.sweep * fraction);
}

AcGeVector2d DerivativeAt(const CurvePiece& piece, double fraction) {
  if (!piece.isArc) return piece.end - piece.start;
  AcGeVector2d out = piece.start - piece.arc.center;
  return out.rotateBy(piece.arc.sweep * fraction).perpVector() * piece.arc.sweep;
}

double FractionAt(const CurvePiece& piece, const AcGePoint2d& p) {
  if (!(piece.length > 0.0)) return 0.0;
  if (!piece.isArc) {
    // Measured from the nearer end: what lies at the far end is then found there to the last digit.
    const double fromStart = (p - piece.start).dotProduct(piece.along);
    if (2.0 * fromStart <= piece.length) return fromStart / piece.length;
    return 1.0 + (p - piece.end).dotProduct(piece.along) / piece.length;
  }
  return Turned(piece, p - piece.arc.center) / std::fabs(piece.arc.sweep);
}

CurvePiece Reversed(const CurvePiece& piece) {
  CurvePiece turned = piece;
  std::swap(turned.start, turned.end);
  turned.along = -piece.along;
  turned.bulge = -piece.bulge;
  if (piece.isArc) {
    turned.arc.startAngle = piece.arc.EndAngle();
    turned.arc.sweep = -piece.arc.sweep;
  }
  return turned;
}

bool Reaches(const ReachedPiece& reached, double fraction) {
  if (reached.IsCircle()) return true;
  return (reached.openStart || fraction >= 0.0) && (reached.openEnd || fraction <= 1.0);
}

double NearestFraction(const ReachedPiece& reached, const AcGePoint2d& p) {
  const CurvePiece& piece = *reached.piece;
  const double fraction = FractionAt(piece, p);
  if (Reaches(reached, fraction)) return fraction;
  if (!piece.isArc) return fraction < 0.0 ? 0.0 : 1.0;
  return p.distanceTo(piece.start) <= p.distanceTo(piece.end) ? 0.0 : 1.0;
}

double DistanceTo(const ReachedPiece& reached, const AcGePoint2d& p) {
  const CurvePiece& piece = *reached.piece;
  if (!(piece.length > 0.0)) return Length(p - piece.start);
  if (piece.isArc) {
    const AcGeVector2d out = p - piece.arc.center;
    const double aside = std::fabs(Length(out) - piece.arc.radius);
    if (reached.IsCircle() || Turned(piece, out) <= std::fabs(piece.arc.sweep)) return aside;
    return std::min(Length(p - piece.start), Length(p - piece.end));
  }
  const AcGeVector2d out = p - piece.start;
  const double t = out.dotProduct(piece.along);
  if (t < 0.0 && !reached.openStart) return Length(out);
  if (t > piece.length && !reached.openEnd) return Length(p - piece.end);
  return std::fabs(piece.along.crossProduct(out));
}

} // namespace ge
