// POINT, RAY and XLINE.
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

namespace scene {

void painters::Point(Pen& pen) {
  pen.point(pen.tags().point(10));
}

void painters::Ray(Pen& pen) {
  const AcGePoint3d from = pen.tags().point(10);
  pen.infiniteLine(from, from + pen.tags().point(11).asVector(), true);
}

void painters::XLine(Pen& pen) {
  const AcGePoint3d from = pen.tags().point(10);
  pen.infiniteLine(from, from + pen.tags().point(11).asVector(), false);
}

} // namespace scene
