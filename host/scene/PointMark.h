// The marks that points are drawn as.
#pragma once

#include "host/scene/Path.h"

namespace scene {

// The strokes of a mark by its mode (PDMODE: 0 dot, 1 nothing, 2 cross, 3 slanted cross, 4 tick, and 32 and
// 64 more for a circle and a square around it) and the length of its side in drawing units. A dot is a line
// of length 0.
Path PointMark(int mode, const AcGePoint2d& at, double size);

// The side of marks by PDSIZE, where the window shows so many drawing units from top to bottom.
double PointMarkSize(double pointSize, double windowHeight);

} // namespace scene
