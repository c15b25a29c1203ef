// WIPEOUT, an area that hides what lies under it, and IMAGE, of which only the frame is drawn.
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

namespace scene {
namespace {

// The boundary stands in pixels: 0.5 beyond the first and the last one, y down from the top.
PathPen boundary(Pen& pen) {
  const EntityTags& tags = pen.tags();
  const AcGePoint3d origin = tags.point(10);
  const AcGeVector3d u = tags.point(11).asVector(); // of one pixel
  const AcGeVector3d v = tags.point(12).asVector();
  const AcGePoint3d size = tags.optionalPoint(13).value_or(AcGePoint3d(1, 1, 0));
  std::vector<AcGePoint3d> corners = tags.points(14);
  if (corners.size() == 2)
    corners = {corners[0], AcGePoint3d(corners[1].x, corners[0].y, 0), corners[1],
               AcGePoint3d(corners[0].x, corners[1].y, 0)};
  if (corners.size() < 3)
    corners = {
        {-0.5, -0.5, 0}, {size.x - 0.5, -0.5, 0}, {size.x - 0.5, size.y - 0.5, 0}, {-0.5, size.y - 0.5, 0}};
  PathPen path = pen.path();
  for (const AcGePoint3d& c : corners) {
    const AcGePoint3d at = origin + u * (c.x + 0.5) + v * (size.y - (c.y + 0.5));
    path.isEmpty() ? path.move(at) : path.line(at);
  }
  path.close();
  return path;
}

} // namespace

void painters::Wipeout(Pen& pen) {
  PathPen path = boundary(pen);
  pen.fill(path, Color{{}, Color::Kind::background, 255});
}

void painters::Image(Pen& pen) {
  PathPen path = boundary(pen);
  pen.stroke(path, {.solid = true});
  pen.leaveOut(L"图像只画边框");
}

} // namespace scene
