// LINE: its ends are in world coordinates, whatever its normal.
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

void scene::painters::Line(Pen& pen) {
  PathPen path = pen.path();
  path.move(pen.tags().point(10));
  path.line(pen.tags().point(11));
  pen.stroke(path);
}
