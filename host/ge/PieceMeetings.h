// The common points and common stretches of two pieces of one plane.
#pragma once

#include "host/ge/CurvePiece.h"

namespace ge {

// A meeting that is an end of one of the pieces is that end's exact point.
enum class MeetingAt { kBetween, kFirstStart, kFirstEnd, kSecondStart, kSecondEnd };

struct PieceMeeting {
  double fraction = 0.0; // on the first piece
  AcGePoint2d point;
  MeetingAt at = MeetingAt::kBetween;
};

// A part of the first piece along which the second runs. On a circle it may run past a full turn's seam, so
// that its end is beyond 1; on extended lines the ends may be infinite.
struct PieceStretch {
  double from = 0.0;
  double to = 0.0;
};

struct PieceMeetings {
  int pointCount = 0;
  PieceMeeting points[6]; // the ends of stretches among them
  int stretchCount = 0;
  PieceStretch stretches[4];

  void Add(const PieceMeeting& meeting) { points[pointCount++] = meeting; }
  void Add(const PieceStretch& stretch) { stretches[stretchCount++] = stretch; }
};

// Two places belong to one meeting when the pieces stay within the tolerance of each other between them; of
// those the end of a piece nearest to the exact solution is taken. Such a meeting between two ends is a
// stretch for lines, and for arcs when it is long enough for its curvature to show or the circles are the
// same.
PieceMeetings MeetPieces(const ReachedPiece& first, const ReachedPiece& second, double tolerance);

} // namespace ge
