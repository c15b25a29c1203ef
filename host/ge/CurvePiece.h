// One straight or circular piece of a curve, in the coordinates of the curve's plane. Places on it are given
// as fractions: 0 at the start, 1 at the end, by length. A fraction outside lies on the extension.
#pragma once

#include "host/ge/ArcMath.h"

namespace ge {

struct CurvePiece {
  AcGePoint2d start; // as given, not computed from the arc
  AcGePoint2d end;
  double bulge = 0.0;     // tangent of a quarter of the sweep
  bool isArc = false;     // whether the next one counts
  PlanarArc arc;          // radius 0 is a point
  AcGeVector2d along;     // of a straight piece: the unit direction, zero without a length
  double length = 0.0;    // 0 for anything below kSmallestLength
  double magnitude = 0.0; // for CurveTolerance
  Box2d box;

  bool IsFullTurn() const;
};

// The offset is the magnitude of the plane's own origin.
CurvePiece StraightPiece(const AcGePoint2d& start, const AcGePoint2d& end, double offset = 0.0);
CurvePiece ArcPiece(const PlanarArc& arc, double offset = 0.0);
// Straight where ArcFromBulge says so, and where the arc is larger than kLargestNumber.
CurvePiece BulgePiece(const AcGePoint2d& start, const AcGePoint2d& end, double bulge, double offset = 0.0);

// Exactly the stored ends at 0 and 1. On an arc every fraction lies on its circle.
AcGePoint2d PointAt(const CurvePiece& piece, double fraction);
// By the fraction: as long as the piece.
AcGeVector2d DerivativeAt(const CurvePiece& piece, double fraction);
// The fraction of the nearest point of the infinite line or of the circle. For an arc never below 0; past the
// end it runs on to a full turn. 0 where the piece has no length.
double FractionAt(const CurvePiece& piece, const AcGePoint2d& p);
CurvePiece Reversed(const CurvePiece& piece);

// A piece together with where it is extended. An arc extended at either side is its circle.
struct ReachedPiece {
  const CurvePiece* piece = nullptr;
  bool openStart = false;
  bool openEnd = false;

  bool IsCircle() const { return piece->isArc && (openStart || openEnd || piece->IsFullTurn()); }
  // Whether the reach ends at this end of the piece.
  bool HasStart() const { return piece->length <= 0.0 || (!openStart && !IsCircle()); }
  bool HasEnd() const { return piece->length <= 0.0 || (!openEnd && !IsCircle()); }
};

// The fraction of the point of the reach that is nearest; of several the first.
double NearestFraction(const ReachedPiece& reached, const AcGePoint2d& p);
double DistanceTo(const ReachedPiece& reached, const AcGePoint2d& p);
// Whether a fraction as FractionAt gives it lies within the reach.
bool Reaches(const ReachedPiece& reached, double fraction);

} // namespace ge
