// SOLID and TRACE, whose third and fourth corners are crossed over, and 3DFACE, where they aren't.
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

#include <array>

namespace scene {

void painters::Solid(Pen& pen) {
  const EntityTags& tags = pen.tags();
  const AcGePoint3d third = tags.point(12);
  PathPen path = pen.path(tags.normal());
  path.move(tags.point(10));
  path.line(tags.point(11));
  path.line(tags.optionalPoint(13).value_or(third));
  path.line(third);
  path.close();
  pen.variables().fills ? pen.fill(path) : pen.stroke(path);
}

void painters::Face(Pen& pen) {
  const EntityTags& tags = pen.tags();
  const AcGePoint3d third = tags.point(12);
  const std::array corners{tags.point(10), tags.point(11), third, tags.optionalPoint(13).value_or(third)};
  const long long hidden = tags.integer(70); // a bit for each edge
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const AcGePoint3d& to = corners[(i + 1) % corners.size()];
    if ((hidden >> i & 1) != 0 || corners[i].distanceTo(to) == 0) continue;
    PathPen path = pen.path();
    path.move(corners[i]);
    path.line(to);
    pen.stroke(path);
  }
}

} // namespace scene
