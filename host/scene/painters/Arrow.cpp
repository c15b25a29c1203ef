#include "host/scene/painters/Arrow.h"

#include "host/scene/Pen.h"

void scene::DrawArrow(Pen& pen, const AcGePoint3d& tip, const AcGeVector3d& backward, double length) {
  constexpr double kHalfWidth = 1.0 / 6; // of the length
  if (!(length > 0)) return;
  const AcGePoint3d base = tip + backward * length;
  const AcGeVector3d side = AcGeVector3d(-backward.y, backward.x, 0) * (length * kHalfWidth);
  PathPen path = pen.path();
  path.move(tip);
  path.line(base + side);
  path.line(base - side);
  path.close();
  pen.fill(path);
}
