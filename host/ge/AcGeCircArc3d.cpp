// Construction of circular arcs; the computation stands in ThreePointArc.
#include "host/ge/AcGeCircArc3d.h"

#include "host/ge/ArbitraryAxis.h"
#include "host/ge/ThreePointArc.h"

#include <cmath>

AcGeCircArc3d::AcGeCircArc3d(const AcGePoint3d& center, const AcGeVector3d& normal, double radius)
    : m_center(center), m_radius(radius) {
  const ge::ObjectAxes axes = ge::ArbitraryAxis(normal);
  m_normal = axes.normal;
  m_refVec = axes.xAxis;
}

AcGeCircArc3d::AcGeCircArc3d(const AcGePoint3d& center, const AcGeVector3d& normal,
                             const AcGeVector3d& refVec, double radius, double startAngle, double endAngle)
    : AcGeCircArc3d(center, normal, radius) {
  // Only what is at right angles to the normal can be a direction on the circle.
  const AcGeVector3d inPlane = refVec - m_normal * refVec.dotProduct(m_normal);
  if (!inPlane.isZeroLength()) m_refVec = inPlane.normal();
  m_startAngle = startAngle;
  m_endAngle = endAngle;
}

AcGeCircArc3d::AcGeCircArc3d(const AcGePoint3d& start, const AcGePoint3d& onArc, const AcGePoint3d& end) {
  set(start, onArc, end);
}

AcGeCircArc3d& AcGeCircArc3d::set(const AcGePoint3d& start, const AcGePoint3d& onArc,
                                  const AcGePoint3d& end) {
  AcGeError status = AcGe::eOk;
  set(start, onArc, end, status);
  if (status == AcGe::eOk) return *this;
  *this = AcGeCircArc3d(start, AcGeVector3d::kZAxis, 0.0);
  return *this;
}

AcGeCircArc3d& AcGeCircArc3d::set(const AcGePoint3d& start, const AcGePoint3d& onArc, const AcGePoint3d& end,
                                  AcGeError& status) {
  const auto arc = ge::ArcThroughPoints(start, onArc, end);
  status = arc ? AcGe::eOk : AcGe::k0This;
  if (!arc) return *this;
  m_center = arc.value.Center();
  m_normal = arc.value.Normal();
  m_radius = arc.value.Radius();
  m_refVec = (start - m_center) / m_radius;
  m_startAngle = 0.0;
  m_endAngle = arc.value.Pieces().front().arc.sweep;
  return *this;
}

AcGePoint3d AcGeCircArc3d::pointAt(double angle) const {
  const AcGeVector3d across = m_normal.crossProduct(m_refVec);
  return m_center + (m_refVec * std::cos(angle) + across * std::sin(angle)) * m_radius;
}
