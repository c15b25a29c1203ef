// Trimming and extending: the start or the end of a curve moves along the curve or its extension to a point.
#pragma once

#include "host/ge/CurveParameters.h"

namespace ge {

// The rest of the curve stays as it was.
//  - A line ends exactly at the point. It can't be moved past its other end: kOutOfRange.
//  - An arc keeps circle, sense and other end, so that any point of its circle will do.
//  - A polyline that runs through the point is cut there, by MoveStart at the first such place, by MoveEnd at
//    the last; otherwise its first or last segment is extended to the point. A closed one is taken as the
//    open one that runs from its first vertex round to it, and has no extension.
// kNotOnCurve where the point lies neither on the curve nor on that extension, kDegenerate where nothing
// would be left or the curve has no length, kNotApplicable for a circle.
CurveResult<Curve> MoveStart(const Curve& curve, const AcGePoint3d& point);
CurveResult<Curve> MoveEnd(const Curve& curve, const AcGePoint3d& point);

} // namespace ge
