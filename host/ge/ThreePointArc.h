// The arc through three points in space.
#pragma once

#include "host/ge/Curve.h"

namespace ge {

// From the first point through the second to the third, counter-clockwise about the normal that this makes; a
// clockwise arc in the xy plane thus has the normal 0, 0, -1. kDegenerate when the second point is within the
// tolerance of the line through the others, or the first and the third coincide.
CurveResult<Curve> ArcThroughPoints(const AcGePoint3d& first, const AcGePoint3d& second,
                                    const AcGePoint3d& third);

} // namespace ge
