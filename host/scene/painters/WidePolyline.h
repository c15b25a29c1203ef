// A plane polyline with bulges and widths, as LWPOLYLINE, POLYLINE and others have it.
#pragma once

#include "host/scene/Pen.h"

#include <vector>

namespace scene {

struct PolylineVertex {
  AcGePoint3d point;
  double bulge = 0;
  double startWidth = 0;
  double endWidth = 0;
};

// Vertices are in the coordinates of the normal.
void DrawPolyline(Pen& pen, const AcGeVector3d& normal, const std::vector<PolylineVertex>& vertices,
                  bool closed, bool throughVertices);

} // namespace scene
