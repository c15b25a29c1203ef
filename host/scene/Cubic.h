// One cubic Bezier piece.
#pragma once

#include "host/ge/AcGePoint2d.h"

namespace scene {

struct Cubic {
  AcGePoint2d start;
  AcGePoint2d control1;
  AcGePoint2d control2;
  AcGePoint2d end;

  AcGePoint2d at(double t) const {
    const double s = 1 - t;
    const double a = s * s * s;
    const double b = 3 * s * s * t;
    const double c = 3 * s * t * t;
    const double d = t * t * t;
    return {a * start.x + b * control1.x + c * control2.x + d * end.x,
            a * start.y + b * control1.y + c * control2.y + d * end.y};
  }
  // The piece between two parameters, by de Casteljau's construction.
  Cubic between(double from, double to) const;
};

} // namespace scene
