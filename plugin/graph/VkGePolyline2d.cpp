#include "plugin/graph/VkGePolyline2d.h"

#include <cmath>

#include "host/afx/CInvalidArgException.h"
#include "host/ge/CurveArea.h"
#include "host/ge/CurveParameters.h"

void VkGePolyline2d::AppendVertex(const AcGePoint3d& point, double centralAngle) {
  m_vertices.push_back({AcGePoint2d(point.x, point.y), centralAngle});
}

void VkGePolyline2d::CleanPolyDumpPoint() {
  std::vector<Vertex> kept;
  for (const auto& vertex : m_vertices) {
    if (!kept.empty() && kept.back().point.isEqualTo(vertex.point))
      kept.back() = vertex;
    else
      kept.push_back(vertex);
  }
  m_vertices = std::move(kept);
}

const VkGePolyline2d::Vertex& VkGePolyline2d::At(int index) const {
  if (index < 0 || index >= GetVertexCount()) AfxThrowInvalidArgException();
  return m_vertices[static_cast<std::size_t>(index)];
}

AcGePoint2d VkGePolyline2d::GetVertex(int index) const {
  return At(index).point;
}

double VkGePolyline2d::GetCentralAngle(int index) const {
  return At(index).centralAngle;
}

ge::Curve VkGePolyline2d::AsCurve() const {
  std::vector<ge::PolylineVertex> vertices;
  vertices.reserve(m_vertices.size());
  for (const auto& [point, angle] : m_vertices) vertices.push_back({point, ge::BulgeOfAngle(angle)});
  return ge::Curve::Polyline(vertices, false);
}

double VkGePolyline2d::GetLength() const {
  if (m_vertices.size() < 2) return 0;
  const auto length = ge::Length(AsCurve());
  return length ? length.value : 0;
}

double VkGePolyline2d::GetArea() const {
  if (m_vertices.size() < 2) return 0;
  const auto area = ge::Area(AsCurve());
  return area ? area.value : 0;
}
