// The plane that two curves have in common, and their pieces in its coordinates.
#pragma once

#include "host/ge/Curve.h"

#include <optional>

namespace ge {

enum class PairPlaneKind {
  kCommon,   // both lie in the frame's plane within the tolerance
  kApart,    // parallel planes or skew lines: nothing to meet
  kCrossing, // planes that cross, or a curve's plane and a line through it
};

struct PairPlane {
  PairPlaneKind kind = PairPlaneKind::kApart;
  CurveFrame frame;
  // Of kCommon only, and valid as long as the curves and this object, which must not be copied while in use.
  std::span<const CurvePiece> first;
  std::span<const CurvePiece> second;
  std::vector<CurvePiece> moved; // those of the curve whose own plane coordinates differ
  std::vector<CurvePiece> alsoMoved;
};

// Fills in the plane of two usable curves.
void FindPairPlane(const Curve& first, const Curve& second, double tolerance, PairPlane& plane);

// The piece in the coordinates of another frame of the same plane, which may look at it from behind.
CurvePiece Moved(const CurvePiece& piece, const CurveFrame& from, const CurveFrame& to);
// The farthest that any point of the piece lies from the other plane.
double HeightOver(const CurvePiece& piece, const CurveFrame& from, const CurveFrame& plane);
// The plane of two infinite lines that meet or are parallel, nothing for skew ones. Lines without a length
// are points.
std::optional<CurveFrame> PlaneOfLines(const AcGePoint3d& start1, const AcGePoint3d& end1,
                                       const AcGePoint3d& start2, const AcGePoint3d& end2, double tolerance);

} // namespace ge
