// What part of the drawing a view shows, from above.
#pragma once

#include "host/ge/AcGePoint2d.h"

struct EdView {
  AcGePoint2d centre; // world
  double height = 1;  // drawing units, above 0
  double aspect = 1;  // width over height

  double width() const { return height * aspect; }
};
