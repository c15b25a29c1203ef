// The arbitrary axis algorithm of DXF: from an extrusion direction alone it derives the axes of the object
// coordinate system, so that a planar entity need not store them.
#pragma once

#include "host/ge/AcGeVector3d.h"

namespace ge {

// Three unit vectors at right angles, right-handed.
struct ObjectAxes {
  AcGeVector3d xAxis;
  AcGeVector3d yAxis;
  AcGeVector3d normal;
};

// The world axes stand in for a direction that is zero or not finite. The direction need not be of unit
// length.
ObjectAxes ArbitraryAxis(const AcGeVector3d& direction);

} // namespace ge
