// LWPOLYLINE.
#include "host/scene/painters/Painters.h"
#include "host/scene/painters/WidePolyline.h"

void scene::painters::LwPolyline(Pen& pen) {
  constexpr long long kClosed = 1;
  constexpr long long kThroughVertices = 128;
  const EntityTags& tags = pen.tags();
  const double elevation = tags.real(38);
  std::vector<PolylineVertex> vertices;
  double constantWidth = 0;
  for (const DxfTag& tag : tags) {
    if (tag.code == 43) constantWidth = RealOf(tag);
    if (tag.code == 10) vertices.push_back({AcGePoint3d(RealOf(tag), 0, elevation)});
    if (vertices.empty()) continue;
    PolylineVertex& vertex = vertices.back();
    if (tag.code == 20) vertex.point.y = RealOf(tag);
    if (tag.code == 40) vertex.startWidth = RealOf(tag);
    if (tag.code == 41) vertex.endWidth = RealOf(tag);
    if (tag.code == 42) vertex.bulge = RealOf(tag);
  }
  if (constantWidth != 0)
    for (PolylineVertex& vertex : vertices) vertex.startWidth = vertex.endWidth = constantWidth;
  const long long flags = tags.integer(70);
  DrawPolyline(pen, tags.normal(), vertices, (flags & kClosed) != 0, (flags & kThroughVertices) != 0);
}
