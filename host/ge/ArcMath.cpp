// Arcs as values, their extents, and the nearest point of an arc or segment. What windows take stands in
// ArcWindow.cpp.
#include "host/ge/ArcMath.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace ge {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;
// The rounding of an angle within one turn; an end computed from a point falls this far beside the stored
// one.
constexpr double kAngleRounding = 4.0 * kTurn * std::numeric_limits<double>::epsilon();
// Below it the arc's height over the chord, half of bulge times chord, is less than the rounding of a radius
// of chord / (4 bulge).
constexpr double kFlatBulge = 1e-8;

bool IsFinite(const PlanarArc& arc) {
  return std::isfinite(arc.center.x) && std::isfinite(arc.center.y) && std::isfinite(arc.radius) &&
         std::isfinite(arc.startAngle) && std::isfinite(arc.sweep);
}

// The outermost points lie in these directions; taken without cosines they are exact.
void AddQuadrants(const PlanarArc& arc, Box2d& box) {
  const AcGeVector2d directions[] = {{1.0, 0.0}, {0.0, 1.0}, {-1.0, 0.0}, {0.0, -1.0}};
  for (const AcGeVector2d& direction : directions) {
    if (arc.Covers(direction.angle())) box.Add(arc.center + direction * arc.radius);
  }
}

double FiniteOrInfinity(double distance) {
  return std::isnan(distance) ? std::numeric_limits<double>::infinity() : distance;
}

} // namespace

double NormalizeAngle(double angle) {
  const double rest = std::fmod(angle, kTurn);
  const double turned = rest < 0.0 ? rest + kTurn : rest;
  // A rest just below zero rounds to the whole turn; what is not a number fails the comparison as well.
  return turned < kTurn ? turned : 0.0;
}

double PlanarArc::EndAngle() const {
  return NormalizeAngle(startAngle + sweep);
}

AcGePoint2d PlanarArc::PointAt(double angle) const {
  return center + AcGeVector2d(std::cos(angle), std::sin(angle)) * radius;
}

bool PlanarArc::Covers(double angle) const {
  const double past = sweep >= 0.0 ? NormalizeAngle(angle - startAngle) : NormalizeAngle(startAngle - angle);
  return past <= std::fabs(sweep) + kAngleRounding || past >= kTurn - kAngleRounding;
}

PlanarArc ArcFromAngles(const AcGePoint2d& center, double radius, double startAngle, double endAngle) {
  const double sweep = NormalizeAngle(endAngle - startAngle);
  return {center, std::fabs(radius), NormalizeAngle(startAngle), sweep > 0.0 ? sweep : kTurn};
}

std::optional<PlanarArc> ArcFromBulge(const AcGePoint2d& start, const AcGePoint2d& end, double bulge) {
  const AcGeVector2d chord = end - start;
  const double length = chord.length();
  if (!(length > 0.0) || !(std::fabs(bulge) >= kFlatBulge)) return std::nullopt;
  // From the chord's middle to the centre, and from the centre to the start: taken from the chord alone, so
  // that the start angle does not suffer from large coordinates. The quotients do not overflow as a square
  // would.
  const AcGeVector2d toCenter = chord.perpVector() * ((1.0 / bulge - bulge) / 4.0);
  const AcGeVector2d toStart = -(chord * 0.5) - toCenter;
  PlanarArc arc;
  arc.center = start + chord * 0.5 + toCenter;
  arc.radius = length * ((1.0 / std::fabs(bulge) + std::fabs(bulge)) / 4.0);
  arc.startAngle = toStart.angle();
  arc.sweep = 4.0 * std::atan(bulge);
  if (!IsFinite(arc)) return std::nullopt;
  return arc;
}

Box2d ArcExtents(const PlanarArc& arc) {
  Box2d box;
  if (!IsFinite(arc)) return box;
  box.Add(arc.PointAt(arc.startAngle));
  box.Add(arc.PointAt(arc.startAngle + arc.sweep));
  AddQuadrants(arc, box);
  return box;
}

Box2d BulgeExtents(const AcGePoint2d& start, const AcGePoint2d& end, double bulge) {
  Box2d box = Box2d::FromCorners(start, end);
  if (const auto arc = ArcFromBulge(start, end, bulge)) AddQuadrants(*arc, box);
  return box;
}

AcGePoint2d ClosestPointOnSegment(const AcGePoint2d& p, const AcGePoint2d& a, const AcGePoint2d& b) {
  const AcGeVector2d along = b - a;
  const double length = along.length();
  if (!(length > 0.0)) return a;
  const AcGeVector2d direction = along / length;
  const double distance = (p - a).dotProduct(direction);
  if (distance >= length) return b;
  return distance <= 0.0 ? a : a + direction * distance;
}

AcGePoint2d ClosestPointOnArc(const AcGePoint2d& p, const PlanarArc& arc) {
  const AcGeVector2d fromCenter = p - arc.center;
  const double distance = fromCenter.length();
  const AcGePoint2d start = arc.PointAt(arc.startAngle);
  if (!(distance > 0.0)) return start;
  if (arc.Covers(fromCenter.angle())) return arc.center + fromCenter / distance * arc.radius;
  // The distance grows with the angle between the two directions, so the nearest point is one of the ends.
  const AcGePoint2d end = arc.PointAt(arc.startAngle + arc.sweep);
  return p.distanceTo(start) <= p.distanceTo(end) ? start : end;
}

double DistanceToSegment(const AcGePoint2d& p, const AcGePoint2d& a, const AcGePoint2d& b) {
  return FiniteOrInfinity(p.distanceTo(ClosestPointOnSegment(p, a, b)));
}

double DistanceToArc(const AcGePoint2d& p, const PlanarArc& arc) {
  if (!IsFinite(arc)) return std::numeric_limits<double>::infinity();
  return FiniteOrInfinity(p.distanceTo(ClosestPointOnArc(p, arc)));
}

double DistanceToBulge(const AcGePoint2d& p, const AcGePoint2d& start, const AcGePoint2d& end, double bulge) {
  if (const auto arc = ArcFromBulge(start, end, bulge)) return DistanceToArc(p, *arc);
  return DistanceToSegment(p, start, end);
}

} // namespace ge
