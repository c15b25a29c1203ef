// What is an end of the stretches that two curves share, and what lies within them.
#pragma once

#include "host/ge/Curve.h"
#include "host/ge/PieceMeetings.h"

namespace ge {

struct CurveStretch {
  std::size_t piece = 0; // of the first curve
  PieceStretch range;
};

// Whether the point, which is common to both curves, lies within the stretches rather than at their end: they
// leave it in two directions or more. Points apart from every stretch do not.
bool LiesWithin(const Curve& first, const std::vector<CurveStretch>& stretches, const AcGePoint2d& p,
                double tolerance);

} // namespace ge
