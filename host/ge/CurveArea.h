// The area that a curve encloses, and the signed angle of an arc at its centre.
#pragma once

#include "host/ge/Curve.h"

namespace ge {

// Closed by the chord from end to start where the curve is open. Positive where the curve runs
// counter-clockwise about its normal; loops of a curve that crosses itself count by their own sense and may
// cancel. A line has 0.
CurveResult<double> SignedArea(const Curve& curve);
CurveResult<double> Area(const Curve& curve);

// The angle an arc sweeps, in (0, 2 pi], negative where it runs clockwise as seen from the tip of the view
// direction; 0 for a line. An arc seen edge on counts as positive. kNotApplicable for a polyline, whose
// segments have one each.
CurveResult<double> CentralAngle(const Curve& curve, const AcGeVector3d& view = AcGeVector3d::kZAxis);

// A bulge is the tangent of a quarter of the signed central angle. What is not finite gives 0.
double BulgeOfAngle(double centralAngle);
double AngleOfBulge(double bulge);

} // namespace ge
