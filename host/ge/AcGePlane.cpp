// Construction of planes, plane coordinates and distances.
#include "host/ge/AcGePlane.h"

#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/ArbitraryAxis.h"

#include <cmath>

constinit const AcGePlane AcGePlane::kXYPlane{AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0)};
constinit const AcGePlane AcGePlane::kYZPlane{AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1)};
constinit const AcGePlane AcGePlane::kZXPlane{AcGeVector3d(0, 0, 1), AcGeVector3d(1, 0, 0)};

AcGePlane::AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& normal) {
  set(origin, normal);
}

AcGePlane::AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis) {
  set(origin, uAxis, vAxis);
}

AcGePlane& AcGePlane::set(const AcGePoint3d& origin, const AcGeVector3d& normal) {
  const ge::ObjectAxes axes = ge::ArbitraryAxis(normal);
  m_origin = origin;
  m_xAxis = axes.xAxis;
  m_yAxis = axes.yAxis;
  return *this;
}

AcGePlane& AcGePlane::set(const AcGePoint3d& origin, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis) {
  const AcGeVector3d u = uAxis.normal();
  const AcGeVector3d v = vAxis.normal();
  const AcGeVector3d n = u.crossProduct(v).normal();
  if (!u.isUnitLength() || !n.isUnitLength()) return set(origin, AcGeVector3d::kZAxis);
  m_origin = origin;
  m_xAxis = u;
  m_yAxis = n.crossProduct(u).normal();
  return *this;
}

void AcGePlane::getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis) const {
  origin = m_origin;
  xAxis = m_xAxis;
  yAxis = m_yAxis;
}

void AcGePlane::getCoefficients(double& a, double& b, double& c, double& d) const {
  const AcGeVector3d n = normal();
  a = n.x;
  b = n.y;
  c = n.z;
  d = -n.dotProduct(m_origin.asVector());
}

AcGePoint3d AcGePlane::evalPoint(const AcGePoint2d& planeCoordinates) const {
  return m_origin + m_xAxis * planeCoordinates.x + m_yAxis * planeCoordinates.y;
}

double AcGePlane::signedDistanceTo(const AcGePoint3d& point) const {
  return (point - m_origin).dotProduct(normal());
}

double AcGePlane::distanceTo(const AcGePoint3d& point) const {
  return std::fabs(signedDistanceTo(point));
}

bool AcGePlane::isOn(const AcGePoint3d& point, const AcGeTol& tol) const {
  return distanceTo(point) <= tol.equalPoint();
}

AcGePlane& AcGePlane::transformBy(const AcGeMatrix3d& matrix) {
  return set(matrix * m_origin, matrix * m_xAxis, matrix * m_yAxis);
}
