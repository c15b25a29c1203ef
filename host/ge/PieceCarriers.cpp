// Line with line, line with circle, circle with circle, each from differences of coordinates, so that a
// drawing far from the origin loses nothing.
#include "host/ge/PieceCarriers.h"

#include <algorithm>
#include <cmath>

namespace ge {
namespace {

CarrierMeetings MeetLines(const ReachedPiece& a, const ReachedPiece& b, double tolerance) {
  CarrierMeetings meetings;
  const CurvePiece& first = *a.piece;
  const CurvePiece& second = *b.piece;
  const double sine = first.along.crossProduct(second.along);
  const AcGeVector2d between = second.start - first.start;
  const bool bothOpen = (a.openStart || a.openEnd) && (b.openStart || b.openEnd);
  if (bothOpen && std::fabs(sine) <= AcGeContext::gTol.equalVector()) {
    // The shorter one by its ends beside the longer one's line: the other way round a rounded direction
    // counts too much.
    const CurvePiece& longer = first.length >= second.length ? first : second;
    const CurvePiece& shorter = first.length >= second.length ? second : first;
    const auto aside = [&](const AcGePoint2d& p) {
      return std::fabs(longer.along.crossProduct(p - longer.start));
    };
    meetings.coincident = std::max(aside(shorter.start), aside(shorter.end)) <= tolerance;
    return meetings;
  }
  if (sine == 0.0) return meetings;
  meetings.Add(first.start + first.along * (between.crossProduct(second.along) / sine));
  return meetings;
}

CarrierMeetings MeetLineAndCircle(const CurvePiece& line, const PlanarArc& circle, double tolerance) {
  CarrierMeetings meetings;
  const AcGeVector2d toCenter = circle.center - line.start;
  const double aside = line.along.crossProduct(toCenter);
  const double depth = circle.radius - std::fabs(aside);
  if (depth < -tolerance) return meetings;
  const AcGePoint2d foot = circle.center - line.along.perpVector() * aside;
  if (depth <= tolerance) {
    meetings.Add(foot);
    return meetings;
  }
  const AcGeVector2d half = line.along * std::sqrt(depth * (circle.radius + std::fabs(aside)));
  meetings.Add(foot - half);
  meetings.Add(foot + half);
  return meetings;
}

CarrierMeetings MeetCircles(const PlanarArc& a, const PlanarArc& b, double tolerance) {
  CarrierMeetings meetings;
  // From the smaller one: the points then lie on it, however large the other.
  const PlanarArc& small = a.radius <= b.radius ? a : b;
  const PlanarArc& large = a.radius <= b.radius ? b : a;
  const AcGeVector2d between = large.center - small.center;
  const double distance = between.length();
  const double difference = large.radius - small.radius;
  if (distance + difference <= 2.0 * tolerance) {
    meetings.coincident = true;
    return meetings;
  }
  const double apart = distance - large.radius - small.radius;
  const double outside = distance - difference; // below 0: the small one lies within the large one
  if (!(distance > 0.0) || apart > tolerance || outside < -tolerance) return meetings;
  const AcGeVector2d direction = between / distance;
  if (apart >= -tolerance) {
    meetings.Add(small.center + direction * (small.radius + apart / 2.0));
  } else if (outside <= tolerance) {
    meetings.Add(small.center - direction * (small.radius - outside / 2.0));
  } else {
    // Heron's product for the height keeps its digits where the circles nearly touch.
    const double along =
        (distance + (small.radius - large.radius) / distance * (small.radius + large.radius)) / 2.0;
    const double height = std::sqrt((distance + small.radius + large.radius) * -apart) *
                          std::sqrt(outside * (distance + difference)) / (2.0 * distance);
    const AcGeVector2d half = direction.perpVector() * height;
    meetings.Add(small.center + direction * along - half);
    meetings.Add(small.center + direction * along + half);
  }
  return meetings;
}

} // namespace

void CarrierMeetings::Add(const AcGePoint2d& p) {
  if (std::isfinite(p.x) && std::isfinite(p.y)) points[count++] = p;
}

CarrierMeetings MeetCarriers(const ReachedPiece& a, const ReachedPiece& b, double tolerance) {
  if (!(a.piece->length > 0.0) || !(b.piece->length > 0.0)) return {};
  if (a.piece->isArc && b.piece->isArc) return MeetCircles(a.piece->arc, b.piece->arc, tolerance);
  if (a.piece->isArc) return MeetLineAndCircle(*b.piece, a.piece->arc, tolerance);
  if (b.piece->isArc) return MeetLineAndCircle(*a.piece, b.piece->arc, tolerance);
  return MeetLines(a, b, tolerance);
}

} // namespace ge
