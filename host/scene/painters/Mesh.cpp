// MESH: the edges of its faces, without the smoothing.
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

void scene::painters::Mesh(Pen& pen) {
  const EntityTags& tags = pen.tags();
  const std::vector<AcGePoint3d> vertices = tags.points(10);
  // Behind the vertices stands the list of faces (93): for each a count and its vertices, all as group 90.
  std::vector<long long> list;
  bool inFaces = false;
  for (const DxfTag& tag : tags) {
    if (tag.code == 93) inFaces = true;
    if (tag.code == 94) break;
    if (inFaces && tag.code == 90) list.push_back(IntegerOf(tag));
  }
  const auto isThere = [&](long long i) { return i >= 0 && static_cast<std::size_t>(i) < vertices.size(); };
  for (std::size_t i = 0; i < list.size();) {
    const long long count = list[i++];
    if (count < 0 || static_cast<std::size_t>(count) > list.size() - i) return pen.leaveOut(L"网格的面不符");
    PathPen path = pen.path();
    for (const auto end = i + static_cast<std::size_t>(count); i < end; ++i) {
      if (!isThere(list[i])) continue;
      const AcGePoint3d& p = vertices[static_cast<std::size_t>(list[i])];
      path.isEmpty() ? path.move(p) : path.line(p);
    }
    if (!path.isEmpty()) path.close();
    pen.stroke(path);
  }
}
