#include "host/scene/painters/WidePolyline.h"

#include "host/ge/ArcMath.h"

#include <cmath>

namespace scene {
namespace {

class PolylineDrawing {
 public:
  PolylineDrawing(Pen& pen, const AcGeVector3d& normal, const std::vector<PolylineVertex>& vertices,
                  bool closed, bool throughVertices)
      : m_pen(pen), m_normal(normal), m_vertices(vertices), m_closed(closed),
        m_throughVertices(throughVertices) {}

  void draw() {
    const std::size_t segments = m_vertices.size() - (m_closed ? 0 : 1);
    for (std::size_t i = 0; i < segments;) {
      if (!isEven(i) || (widthOf(i) > 0 && !m_pen.variables().fills)) {
        drawTapered(i++);
        continue;
      }
      std::size_t end = i + 1;
      while (end < segments && isEven(end) && widthOf(end) == widthOf(i)) ++end;
      drawEven(i, end, m_closed && end - i == m_vertices.size());
      i = end;
    }
  }

 private:
  const PolylineVertex& vertex(std::size_t i) const { return m_vertices[i % m_vertices.size()]; }
  double widthOf(std::size_t i) const { return std::fabs(m_vertices[i].startWidth); }
  bool isEven(std::size_t i) const {
    return std::fabs(m_vertices[i].startWidth) == std::fabs(m_vertices[i].endWidth);
  }

  void drawEven(std::size_t begin, std::size_t end, bool closed) {
    PathPen path = m_pen.path(m_normal);
    path.move(vertex(begin).point);
    for (std::size_t i = begin; i < end; ++i)
      path.bulge(vertex(i).point, vertex(i + 1).point, vertex(i).bulge);
    if (closed) path.close();
    m_pen.stroke(path, {.width = widthOf(begin), .throughVertices = m_throughVertices});
  }

  // The outline of a segment whose width changes: along one side and back along the other.
  void drawTapered(std::size_t i) {
    const PolylineVertex& from = vertex(i);
    const AcGePoint3d to = vertex(i + 1).point;
    const auto arc = ge::ArcFromBulge({from.point.x, from.point.y}, {to.x, to.y}, from.bulge);
    const int steps = arc ? 16 : 1;
    std::vector<AcGePoint3d> left;
    std::vector<AcGePoint3d> right;
    for (int step = 0; step <= steps; ++step) {
      const double t = static_cast<double>(step) / steps;
      const double half = (from.startWidth + (from.endWidth - from.startWidth) * t) / 2;
      AcGePoint3d at = from.point + (to - from.point) * t;
      AcGeVector3d out(-(to.y - from.point.y), to.x - from.point.x, 0);
      if (arc) {
        const double angle = arc->startAngle + arc->sweep * t;
        out = AcGeVector3d(std::cos(angle), std::sin(angle), 0);
        at = AcGePoint3d(arc->center.x, arc->center.y, from.point.z) + out * arc->radius;
      }
      if (out.length() > 0) out /= out.length();
      left.push_back(at + out * half);
      right.push_back(at - out * half);
    }
    PathPen path = m_pen.path(m_normal);
    path.move(left.front());
    for (std::size_t k = 1; k < left.size(); ++k) path.line(left[k]);
    for (std::size_t k = right.size(); k-- > 0;) path.line(right[k]);
    path.close();
    m_pen.variables().fills ? m_pen.fill(path) : m_pen.stroke(path);
  }

  Pen& m_pen;
  AcGeVector3d m_normal;
  const std::vector<PolylineVertex>& m_vertices;
  bool m_closed;
  bool m_throughVertices;
};

} // namespace

void DrawPolyline(Pen& pen, const AcGeVector3d& normal, const std::vector<PolylineVertex>& vertices,
                  bool closed, bool throughVertices) {
  if (vertices.size() < 2) return;
  PolylineDrawing(pen, normal, vertices, closed, throughVertices).draw();
}

} // namespace scene
