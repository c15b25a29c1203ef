// POLYLINE: plane with widths and bulges, in space, a mesh of rows and columns, or a mesh of faces.
#include "host/db/AcDbEntity.h"
#include "host/scene/painters/Painters.h"
#include "host/scene/painters/WidePolyline.h"

#include <array>
#include <cstdlib>

namespace scene {
namespace {

enum Flag : long long {
  kClosed = 1,
  kSplineFit = 4,
  kInSpace = 8,
  kMesh = 16,
  kMeshClosedAcross = 32,
  kFaces = 64,
  kThroughVertices = 128
};
constexpr long long kControlPoint = 16; // of a vertex: stands beside the curve that it shapes
constexpr long long kFaceRecord = 128;
constexpr long long kPosition = 64;

struct Vertex {
  PolylineVertex plane;
  long long flags = 0;
  std::array<long long, 4> corners{}; // of a face: numbers of vertices from 1, negative where the edge hides
};

std::vector<Vertex> verticesOf(const Pen& pen) {
  std::vector<Vertex> vertices;
  const double startWidth = pen.tags().real(40);
  const double endWidth = pen.tags().real(41);
  for (const AcDbObjectId& id : pen.entity().subEntities()) {
    const auto* entity = AcDbEntity::cast(id.object());
    if (!entity || entity->isErased() || entity->record().type() != "VERTEX") continue;
    const EntityTags tags(entity->record());
    Vertex vertex;
    vertex.plane = {tags.point(10), tags.real(42), tags.real(40, startWidth), tags.real(41, endWidth)};
    vertex.flags = tags.integer(70);
    for (int i = 0; i < 4; ++i) vertex.corners[static_cast<std::size_t>(i)] = tags.integer(71 + i);
    vertices.push_back(vertex);
  }
  return vertices;
}

void drawInSpace(Pen& pen, const std::vector<Vertex>& vertices, bool closed) {
  PathPen path = pen.path();
  for (const Vertex& vertex : vertices)
    path.isEmpty() ? path.move(vertex.plane.point) : path.line(vertex.plane.point);
  if (closed && !path.isEmpty()) path.close();
  pen.stroke(path);
}

void drawMesh(Pen& pen, const std::vector<Vertex>& vertices, long long flags) {
  const bool smooth = (flags & kSplineFit) != 0;
  const auto count = [&](int code, int smoothCode) {
    const long long n = pen.tags().integer(smooth ? smoothCode : code);
    return static_cast<std::size_t>(n > 0 ? n : 0);
  };
  const std::size_t rows = count(71, 73);
  const std::size_t columns = count(72, 74);
  if (rows == 0 || columns == 0 || rows > vertices.size() || columns > vertices.size() / rows)
    return pen.leaveOut(L"网格的顶点数不符");
  const auto at = [&](std::size_t r, std::size_t c) { return vertices[r * columns + c].plane.point; };
  for (std::size_t r = 0; r < rows; ++r) {
    PathPen path = pen.path();
    for (std::size_t c = 0; c < columns; ++c) c == 0 ? path.move(at(r, c)) : path.line(at(r, c));
    if ((flags & kMeshClosedAcross) != 0) path.close();
    pen.stroke(path);
  }
  for (std::size_t c = 0; c < columns; ++c) {
    PathPen path = pen.path();
    for (std::size_t r = 0; r < rows; ++r) r == 0 ? path.move(at(r, c)) : path.line(at(r, c));
    if ((flags & kClosed) != 0) path.close();
    pen.stroke(path);
  }
}

void drawFaces(Pen& pen, const std::vector<Vertex>& vertices) {
  std::vector<AcGePoint3d> positions;
  for (const Vertex& vertex : vertices)
    if ((vertex.flags & kPosition) != 0) positions.push_back(vertex.plane.point);
  const auto isThere = [&](long long number) {
    return number != 0 && static_cast<std::size_t>(std::llabs(number)) <= positions.size();
  };
  for (const Vertex& face : vertices) {
    if ((face.flags & kFaceRecord) == 0 || (face.flags & kPosition) != 0) continue;
    std::vector<long long> corners;
    for (const long long number : face.corners)
      if (isThere(number)) corners.push_back(number);
    for (std::size_t i = 0; corners.size() > 1 && i < corners.size(); ++i) {
      if (corners[i] < 0) continue;
      PathPen path = pen.path();
      path.move(positions[static_cast<std::size_t>(corners[i]) - 1]);
      path.line(positions[static_cast<std::size_t>(std::llabs(corners[(i + 1) % corners.size()])) - 1]);
      pen.stroke(path);
    }
  }
}

} // namespace

void painters::Polyline(Pen& pen) {
  const long long flags = pen.tags().integer(70);
  std::vector<Vertex> vertices = verticesOf(pen);
  if ((flags & kFaces) != 0) return drawFaces(pen, vertices);
  // Of a smoothed one only the curve is drawn, of others there are no control points.
  std::erase_if(vertices, [](const Vertex& vertex) { return (vertex.flags & kControlPoint) != 0; });
  if ((flags & kMesh) != 0) return drawMesh(pen, vertices, flags);
  const bool closed = (flags & kClosed) != 0;
  if ((flags & kInSpace) != 0) return drawInSpace(pen, vertices, closed);
  std::vector<PolylineVertex> plane;
  const double elevation = pen.tags().point(10).z;
  for (const Vertex& vertex : vertices) {
    plane.push_back(vertex.plane);
    plane.back().point.z = elevation;
  }
  DrawPolyline(pen, pen.tags().normal(), plane, closed, (flags & kThroughVertices) != 0);
}

} // namespace scene
