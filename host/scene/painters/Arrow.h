// Arrow heads of leaders and dimensions.
#pragma once

#include "host/ge/AcGePoint3d.h"

namespace scene {

class Pen;

// A filled head with its tip at a point; backward (length 1) runs from the tip along the line. Nothing for a
// length that is not above 0.
void DrawArrow(Pen& pen, const AcGePoint3d& tip, const AcGeVector3d& backward, double length);

} // namespace scene
