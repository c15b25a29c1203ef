// A B-spline with weights, drawn as Bezier pieces: exactly up to the third degree without weights, closely
// otherwise.
#pragma once

#include "host/scene/PathPen.h"

#include <vector>

namespace scene {

struct SplineCurve {
  int degree = 3;
  std::vector<double> knots;
  std::vector<AcGePoint3d> controls;
  std::vector<double> weights; // empty, or one for each control point
  std::vector<AcGePoint3d> fits;

  // Adds the curve; begin makes it a part of its own, otherwise it goes on from the last point. By its
  // control points, or through its fit points where it has none. False when it has too few of both.
  bool addTo(PathPen& path, bool begin = true) const;
};

} // namespace scene
