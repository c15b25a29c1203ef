// The common points of two pieces whose planes differ: a line that pierces the plane of an arc, arcs in
// planes that cross, lines in space.
#pragma once

#include "host/ge/CurveFrame.h"
#include "host/ge/PieceMeetings.h"

namespace ge {

struct SpacePiece {
  ReachedPiece reached;
  const CurveFrame* frame = nullptr;

  AcGePoint3d PointAt(double fraction) const { return frame->ToWorld(ge::PointAt(*reached.piece, fraction)); }
  double FractionAt(const AcGePoint3d& p) const { return ge::FractionAt(*reached.piece, frame->ToPlane(p)); }
  double DistanceTo(const AcGePoint3d& p) const;
};

// As MeetPieces. Stretches come from lines alone: arcs that overlap have one plane.
PieceMeetings MeetInSpace(const SpacePiece& first, const SpacePiece& second, double tolerance);

} // namespace ge
