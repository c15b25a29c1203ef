// Points on curves that R12 lacks, close enough for a polyline in their place.
#pragma once

#include "host/db/DxfTag.h"
#include "host/ge/AcGePoint3d.h"
#include "host/ge/AcGeVector3d.h"

#include <vector>

namespace dxf {

struct Ellipse {
  AcGePoint3d centre;
  AcGeVector3d majorAxis; // half of it
  AcGeVector3d normal;
  double ratio; // of the minor to the major axis
  double start; // parameters, radians
  double end;
};
std::vector<AcGePoint3d> ellipsePoints(const Ellipse& ellipse);

// From the tags of a SPLINE: degree, knots, control points and weights; its fit points where it has no
// others. Empty when they do not fit together.
std::vector<AcGePoint3d> splinePoints(DxfTags tags);

} // namespace dxf
