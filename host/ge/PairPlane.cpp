// Finding the common plane. Curves of one normal and elevation, nearly all of a drawing, share their pieces
// unchanged.
#include "host/ge/PairPlane.h"

#include "host/ge/ArbitraryAxis.h"

#include <algorithm>
#include <cmath>

namespace ge {
namespace {

bool LiesIn(const Curve& curve, const CurveFrame& plane, double tolerance) {
  return std::ranges::all_of(curve.Pieces(), [&](const CurvePiece& piece) {
    return HeightOver(piece, curve.Frame(), plane) <= tolerance;
  });
}

std::span<const CurvePiece> MoveInto(const Curve& curve, const CurveFrame& frame,
                                     std::vector<CurvePiece>& into) {
  for (const CurvePiece& piece : curve.Pieces()) into.push_back(Moved(piece, curve.Frame(), frame));
  return into;
}

} // namespace

CurvePiece Moved(const CurvePiece& piece, const CurveFrame& from, const CurveFrame& to) {
  const auto map = [&](const AcGePoint2d& p) { return to.ToPlane(from.ToWorld(p)); };
  CurvePiece moved = StraightPiece(map(piece.start), map(piece.end));
  moved.magnitude = piece.magnitude;
  if (!piece.isArc) return moved;
  const double sense = from.normal.dotProduct(to.normal) < 0.0 ? -1.0 : 1.0;
  moved.isArc = true;
  moved.along = {};
  moved.bulge = piece.bulge * sense;
  moved.length = piece.length;
  moved.arc.center = map(piece.arc.center);
  moved.arc.radius = piece.arc.radius;
  moved.arc.startAngle = (moved.start - moved.arc.center).angle();
  moved.arc.sweep = piece.arc.sweep * sense;
  moved.box.Add(ArcExtents(moved.arc));
  return moved;
}

double HeightOver(const CurvePiece& piece, const CurveFrame& from, const CurveFrame& plane) {
  const auto height = [&](const AcGePoint2d& p) { return std::fabs(plane.Height(from.ToWorld(p))); };
  const double ends = std::max(height(piece.start), height(piece.end));
  if (!piece.isArc) return ends;
  const double tilt = from.normal.crossProduct(plane.normal).length();
  return std::max(ends, height(piece.arc.center) + piece.arc.radius * tilt);
}

std::optional<CurveFrame> PlaneOfLines(const AcGePoint3d& start1, const AcGePoint3d& end1,
                                       const AcGePoint3d& start2, const AcGePoint3d& end2, double tolerance) {
  const AcGeVector3d along1 = end1 - start1;
  const AcGeVector3d along2 = end2 - start2;
  const double length1 = along1.length();
  const double length2 = along2.length();
  if (!(length1 > 0.0)) {
    if (!(length2 > 0.0)) return CurveFrame::Through(start1, AcGeVector3d::kXAxis, start2);
    return CurveFrame::Through(start2, along2 / length2, start1);
  }
  const AcGeVector3d x = along1 / length1;
  const AcGeVector3d across = length2 > 0.0 ? x.crossProduct(along2 / length2) : AcGeVector3d();
  const double sine = across.length();
  // Where the lines cross at an angle their common perpendicular is well determined.
  if (sine > 1e-6) {
    const AcGeVector3d n = across / sine;
    if (std::fabs((start2 - start1).dotProduct(n)) > tolerance) return std::nullopt;
    const AcGeVector3d y = n.crossProduct(x);
    return CurveFrame{start1, x, y / y.length(), n};
  }
  const auto aside = [&](const AcGePoint3d& p) { return x.crossProduct(p - start1).length(); };
  const bool startIsFarther = aside(start2) >= aside(end2);
  const CurveFrame plane = CurveFrame::Through(start1, x, startIsFarther ? start2 : end2);
  if (std::fabs(plane.Height(startIsFarther ? end2 : start2)) > tolerance) return std::nullopt;
  return plane;
}

void FindPairPlane(const Curve& first, const Curve& second, double tolerance, PairPlane& plane) {
  plane.frame = first.Frame();
  if (first.Frame().SharesAxes(second.Frame())) {
    if (std::fabs(first.Frame().Height(second.Frame().origin)) > tolerance) return;
    plane.kind = PairPlaneKind::kCommon;
    plane.first = first.Pieces();
    plane.second = second.Pieces();
    return;
  }
  if (first.Kind() == CurveKind::kLine && second.Kind() == CurveKind::kLine) {
    const auto frame = PlaneOfLines(first.PieceStart(0), first.PieceEnd(0), second.PieceStart(0),
                                    second.PieceEnd(0), tolerance);
    if (!frame) return;
    plane.frame = *frame;
    plane.first = MoveInto(first, *frame, plane.moved);
    plane.second = MoveInto(second, *frame, plane.alsoMoved);
    plane.kind = PairPlaneKind::kCommon;
  } else if (LiesIn(second, first.Frame(), tolerance)) {
    plane.first = first.Pieces();
    plane.second = MoveInto(second, first.Frame(), plane.moved);
    plane.kind = PairPlaneKind::kCommon;
  } else if (LiesIn(first, second.Frame(), tolerance)) {
    plane.frame = second.Frame();
    plane.first = MoveInto(first, second.Frame(), plane.moved);
    plane.second = second.Pieces();
    plane.kind = PairPlaneKind::kCommon;
  } else {
    plane.kind = PairPlaneKind::kCrossing;
  }
}

} // namespace ge
