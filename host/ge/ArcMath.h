// Plane arcs and segments as picking and extents need them: analytic, without iteration, and safe for any
// input. What is not finite is touched by nothing and infinitely far away. Angles are radians,
// counter-clockwise from the x axis.
#pragma once

#include "host/ge/AcGePoint2d.h"
#include "host/ge/Box2d.h"

#include <optional>

namespace ge {

// An arc of a circle, or the whole circle when it sweeps a full turn.
struct PlanarArc {
  AcGePoint2d center;
  double radius = 0.0;     // 0 makes the arc a point
  double startAngle = 0.0; // in [0, 2 pi)
  double sweep = 0.0;      // in [-2 pi, 2 pi], positive counter-clockwise

  double EndAngle() const; // in [0, 2 pi)
  AcGePoint2d PointAt(double angle) const;
  // Whether the direction lies within the sweep, its ends included.
  bool Covers(double angle) const;
};

// The same direction in [0, 2 pi); 0 for an angle that is not finite.
double NormalizeAngle(double angle);

// Counter-clockwise from one angle to the other, as arcs are stored; equal angles make the whole circle.
PlanarArc ArcFromAngles(const AcGePoint2d& center, double radius, double startAngle, double endAngle);

// A polyline's segment with a bulge, the tangent of a quarter of its sweep, positive counter-clockwise.
// Nothing when the segment is to be taken as straight: no chord, no bulge or one so small that the rounding
// of centre and radius exceeds the arc's height over its chord, or a number that is not finite.
std::optional<PlanarArc> ArcFromBulge(const AcGePoint2d& start, const AcGePoint2d& end, double bulge);

Box2d ArcExtents(const PlanarArc& arc);
// Holds both ends exactly, whatever the bulge.
Box2d BulgeExtents(const AcGePoint2d& start, const AcGePoint2d& end, double bulge);

AcGePoint2d ClosestPointOnSegment(const AcGePoint2d& p, const AcGePoint2d& a, const AcGePoint2d& b);
// For the arc's centre itself every point is as close; its start is returned.
AcGePoint2d ClosestPointOnArc(const AcGePoint2d& p, const PlanarArc& arc);
double DistanceToSegment(const AcGePoint2d& p, const AcGePoint2d& a, const AcGePoint2d& b);
double DistanceToArc(const AcGePoint2d& p, const PlanarArc& arc);
double DistanceToBulge(const AcGePoint2d& p, const AcGePoint2d& start, const AcGePoint2d& end, double bulge);

// Whether any point of the curve lies in the rectangle or on its border: what a crossing window takes.
bool SegmentTouchesBox(const AcGePoint2d& a, const AcGePoint2d& b, const Box2d& box);
bool ArcTouchesBox(const PlanarArc& arc, const Box2d& box);
bool BulgeTouchesBox(const AcGePoint2d& start, const AcGePoint2d& end, double bulge, const Box2d& box);
// Whether the whole curve lies in the rectangle: what an enclosing window takes.
bool SegmentInsideBox(const AcGePoint2d& a, const AcGePoint2d& b, const Box2d& box);
bool ArcInsideBox(const PlanarArc& arc, const Box2d& box);
bool BulgeInsideBox(const AcGePoint2d& start, const AcGePoint2d& end, double bulge, const Box2d& box);

} // namespace ge
