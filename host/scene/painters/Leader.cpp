// LEADER: a line or a spline through its points, with an arrow at the first.
#include "host/scene/Pen.h"
#include "host/scene/SplineCurve.h"
#include "host/scene/painters/Arrow.h"
#include "host/scene/painters/DimensionStyle.h"
#include "host/scene/painters/Painters.h"

void scene::painters::Leader(Pen& pen) {
  const EntityTags& tags = pen.tags();
  const std::vector<AcGePoint3d> points = tags.points(10);
  if (points.size() < 2) return pen.leaveOut(L"只有一点的引线");
  PathPen path = pen.path();
  if (tags.integer(72) == 1) {
    SplineCurve curve;
    curve.fits = points;
    curve.addTo(path);
  } else {
    for (const AcGePoint3d& p : points) path.isEmpty() ? path.move(p) : path.line(p);
  }
  pen.stroke(path);
  const AcGeVector3d first = points[1] - points[0];
  const double length = first.length();
  const double arrow = DimensionStyleOf(pen).arrow;
  // An arrow as long as half of its line would hide it.
  if (tags.integer(71, 1) != 0 && length > 2 * arrow) DrawArrow(pen, points[0], first / length, arrow);
}
