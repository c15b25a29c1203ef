// Curves under affine transformations.
#pragma once

#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/Curve.h"

namespace ge {

// A line takes any matrix. The others take those that leave circles circles, that is rotations, translations,
// reflections and scaling by one factor; kNotUniform for the rest, kNotFinite where a number leaves the
// range. A reflection keeps every point's image but turns the sense: an arc then starts where its end went, a
// polyline keeps its order and changes the signs of its bulges.
CurveResult<Curve> Transformed(const Curve& curve, const AcGeMatrix3d& matrix);

} // namespace ge
