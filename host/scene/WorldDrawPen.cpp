#include "host/scene/WorldDrawPen.h"

#include "host/scene/Pen.h"

#include <cmath>

namespace scene {

void WorldDrawPen::point(const AcGePoint3d& at) {
  m_isEmpty = false;
  m_pen.point(matrix() * at);
}

void WorldDrawPen::polyline(std::span<const AcGePoint3d> points) {
  m_isEmpty = false;
  PathPen path = m_pen.path(matrix());
  for (const AcGePoint3d& p : points) path.isEmpty() ? path.move(p) : path.line(p);
  m_pen.stroke(path, {.throughVertices = true});
}

void WorldDrawPen::circularArc(const AcGePoint3d& centre, double radius, const AcGeVector3d& normal,
                               const AcGeVector3d& xAxis, double startAngle, double sweep) {
  m_isEmpty = false;
  if (!std::isfinite(startAngle) || !std::isfinite(sweep)) return m_pen.leaveOut(L"角度不是数");
  PathPen path = m_pen.path(matrix());
  path.arc(centre, xAxis * radius, normal.crossProduct(xAxis) * radius, startAngle, sweep);
  m_pen.stroke(path);
}

void WorldDrawPen::text(const AcGePoint3d& at, const AcGeVector3d& normal, const AcGeVector3d& direction,
                        double height, double widthFactor, const CString& text) {
  m_isEmpty = false;
  m_pen.text(std::wstring(text.View()), m_pen.style(CString(L"Standard")).font, matrix(), at,
             direction * (height * widthFactor), normal.crossProduct(direction) * height);
}

void WorldDrawPen::pushModelTransform(const AcGeMatrix3d& pushed) {
  m_matrices.push_back(matrix() * pushed);
}

void WorldDrawPen::popModelTransform() {
  if (!m_matrices.empty()) m_matrices.pop_back();
}

} // namespace scene
