// MLINE: lines side by side along a path. Each vertex tells where along its mitre each line passes.
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

namespace scene {
namespace {

struct Vertex {
  AcGePoint3d point;
  AcGePoint3d mitre;
  std::vector<double> offsets; // of each line, along the mitre
};

std::vector<Vertex> verticesOf(const EntityTags& tags) {
  std::vector<Vertex> vertices;
  long long expected = 0; // how many numbers of the element are still to come
  bool isFirst = false;
  for (const DxfTag& tag : tags) {
    if (tag.code == 11) vertices.emplace_back();
    if (vertices.empty()) continue;
    Vertex& vertex = vertices.back();
    ReadCoordinate(tag, 11, vertex.point);
    ReadCoordinate(tag, 13, vertex.mitre);
    if (tag.code == 74) {
      expected = IntegerOf(tag);
      isFirst = true;
    }
    if (tag.code != 41 || expected-- <= 0) continue;
    if (isFirst) vertex.offsets.push_back(RealOf(tag));
    isFirst = false;
  }
  return vertices;
}

} // namespace

void painters::MLine(Pen& pen) {
  constexpr long long kClosed = 2;
  const std::vector<Vertex> vertices = verticesOf(pen.tags());
  if (vertices.empty()) return;
  for (std::size_t line = 0; line < vertices.front().offsets.size(); ++line) {
    PathPen path = pen.path();
    for (const Vertex& vertex : vertices) {
      if (line >= vertex.offsets.size()) continue;
      const AcGePoint3d at = vertex.point + vertex.mitre.asVector() * vertex.offsets[line];
      path.isEmpty() ? path.move(at) : path.line(at);
    }
    if ((pen.tags().integer(71) & kClosed) != 0 && !path.isEmpty()) path.close();
    pen.stroke(path);
  }
}

} // namespace scene
