// Where the unbounded lines and full circles that carry two pieces of one plane meet. Which of these points
// lie on the pieces themselves is decided in PieceMeetings.
#pragma once

#include "host/ge/CurvePiece.h"

namespace ge {

struct CarrierMeetings {
  int count = 0;
  AcGePoint2d points[2];
  // One carrier for both, within the tolerance.
  bool coincident = false;

  // A point that is not finite is left out.
  void Add(const AcGePoint2d& p);
};

// One point where the carriers touch within the tolerance, none for pieces without a length. Lines are
// parallel, and may coincide, only when both are extended: whether segments overlap is a matter of their
// ends.
CarrierMeetings MeetCarriers(const ReachedPiece& a, const ReachedPiece& b, double tolerance);

} // namespace ge
