// How the symbol's circle cuts a pipe at the joint. Each takes the pipe, open for write, and gives the id of
// the second part where the pipe was split: a copy of it in the current space; null where it wasn't.
#pragma once

#include <vector>

#include "host/db/AcDbObjectId.h"
#include "host/ge/AcGePoint3d.h"

class AcDbCircle;
class AcDbCurve;

namespace crossings {

// The points of the curve on the circle, in the order of the curve; false where the host can tell none.
bool MeetCircle(const AcDbCurve& curve, const AcDbCircle& circle, std::vector<AcGePoint3d>& points);

// A lower pipe stops at the circle. With one common point the end that is nearer to the joint moves there;
// with two the part between them goes. Otherwise, as when the pipe lies wholly inside, it stays.
AcDbObjectId CutLower(AcDbCurve& pipe, const AcDbCircle& circle);

// A higher pipe runs to the joint. With one common point the end that is nearer moves there; with two the
// pipe is split in two that meet there, unless the joint is an end of it. Otherwise it stays.
AcDbObjectId CutUpper(AcDbCurve& pipe, const AcDbCircle& circle);

} // namespace crossings
