#include "host/ed/EntityHitTest.h"

#include "host/db/AcDbEntity.h"
#include "host/ed/EntitySearch.h"
#include "host/ge/ArcMath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

AcGePoint2d flat(const AcGePoint3d& p) {
  return {p.x, p.y};
}

bool isInside(const AcGePoint2d& p, std::span<const AcGePoint2d> corners) {
  int left = 0;
  int right = 0;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const auto& a = corners[i];
    const auto& b = corners[(i + 1) % corners.size()];
    const double side = (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
    if (!(side <= 0)) ++left;
    if (!(side >= 0)) ++right;
  }
  return left == 0 || right == 0;
}

} // namespace

bool PlanarDraw::beginEntity(const AcDbEntity& entity) {
  return ed::IsDrawn(entity);
}

void PlanarDraw::pushModelTransform(const AcGeMatrix3d& matrix) {
  ++m_transforms;
  TransformingDraw::pushModelTransform(matrix);
}

void PlanarDraw::popModelTransform() {
  --m_transforms;
  TransformingDraw::popModelTransform();
}

void PlanarDraw::circularArc(const AcGePoint3d& centre, double radius, const AcGeVector3d& normal,
                             const AcGeVector3d& xAxis, double startAngle, double sweep) {
  const bool isFlat = m_transforms == 0 && normal.x == 0 && normal.y == 0;
  if (!isFlat) {
    TransformingDraw::circularArc(centre, radius, normal, xAxis, startAngle, sweep);
    return;
  }
  const double turn = normal.z < 0 ? -1.0 : 1.0; // seen from below, arcs run clockwise
  const double start = std::atan2(xAxis.y, xAxis.x) + turn * startAngle;
  arc({flat(centre), radius, ge::NormalizeAngle(start), turn * sweep});
}

void PlanarDraw::worldPoint(const AcGePoint3d& at) {
  dot(flat(at));
}

void PlanarDraw::worldPolyline(std::span<const AcGePoint3d> points) {
  for (std::size_t i = 1; i < points.size(); ++i) segment(flat(points[i - 1]), flat(points[i]));
}

void PlanarDraw::worldText(const AcGePoint3d& at, const AcGeVector3d& along, const AcGeVector3d& up,
                           const CString&) {
  const AcGePoint2d corners[] = {flat(at), flat(at + along), flat(at + along + up), flat(at + up)};
  area(corners);
}

// --- windows
// ----------------------------------------------------------------------------------------------------

bool WindowHitTest::takes(const AcDbEntity& entity) {
  m_touched = m_outside = false;
  entity.worldDraw(*this);
  return m_crossing ? m_touched : m_touched && !m_outside;
}

void WindowHitTest::segment(const AcGePoint2d& a, const AcGePoint2d& b) {
  if (isDecided()) return;
  if (m_window.Contains(a) && m_window.Contains(b)) {
    m_touched = true;
    return;
  }
  m_outside = true;
  if (m_crossing) m_touched = ge::SegmentTouchesBox(a, b, m_window);
}

void WindowHitTest::arc(const ge::PlanarArc& arc) {
  if (isDecided()) return;
  const bool inside = ge::ArcInsideBox(arc, m_window);
  if (!inside) m_outside = true;
  m_touched = m_touched || inside || (m_crossing && ge::ArcTouchesBox(arc, m_window));
}

void WindowHitTest::dot(const AcGePoint2d& at) {
  const bool inside = m_window.Contains(at);
  m_touched = m_touched || inside;
  m_outside = m_outside || !inside;
}

void WindowHitTest::area(std::span<const AcGePoint2d> corners) {
  for (std::size_t i = 0; i < corners.size(); ++i) segment(corners[i], corners[(i + 1) % corners.size()]);
  if (m_crossing && !m_touched) m_touched = isInside({m_window.minX, m_window.minY}, corners);
}

// --- distances
// --------------------------------------------------------------------------------------------------

double DistanceHitTest::distanceTo(const AcDbEntity& entity) {
  m_nearest = std::numeric_limits<double>::infinity();
  entity.worldDraw(*this);
  return m_nearest;
}

void DistanceHitTest::nearer(double distance) {
  if (distance < m_nearest) m_nearest = distance;
}

void DistanceHitTest::segment(const AcGePoint2d& a, const AcGePoint2d& b) {
  m_extents.Add(a);
  m_extents.Add(b);
  nearer(ge::DistanceToSegment(m_point, a, b));
}

void DistanceHitTest::arc(const ge::PlanarArc& arc) {
  m_extents.Add(ge::ArcExtents(arc));
  nearer(ge::DistanceToArc(m_point, arc));
}

void DistanceHitTest::dot(const AcGePoint2d& at) {
  m_extents.Add(at);
  nearer((at - m_point).length());
}

void DistanceHitTest::area(std::span<const AcGePoint2d> corners) {
  for (std::size_t i = 0; i < corners.size(); ++i) segment(corners[i], corners[(i + 1) % corners.size()]);
  if (isInside(m_point, corners)) nearer(0);
}
