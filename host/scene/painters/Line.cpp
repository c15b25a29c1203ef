// LINE: its ends are in world coordinates, whatever its normal.
#include "host/db/AcDbLine.h"
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

void scene::painters::Line(Pen& pen) {
  const auto* line = AcDbLine::cast(&pen.entity());
  if (!line) return;
  PathPen path = pen.path();
  path.move(line->startPoint());
  path.line(line->endPoint());
  pen.stroke(path);
}
