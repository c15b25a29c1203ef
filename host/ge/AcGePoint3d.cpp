// Distances, transformations and projections of points.
#include "host/ge/AcGePoint3d.h"

#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/AcGePlane.h"

constinit const AcGePoint3d AcGePoint3d::kOrigin{0.0, 0.0, 0.0};

AcGePoint3d::AcGePoint3d(const AcGePlane& plane, const AcGePoint2d& point) {
  set(plane, point);
}

AcGePoint3d& AcGePoint3d::set(double xx, double yy, double zz) {
  return *this = AcGePoint3d(xx, yy, zz);
}

AcGePoint3d& AcGePoint3d::set(const AcGePlane& plane, const AcGePoint2d& point) {
  return *this = plane.evalPoint(point);
}

double AcGePoint3d::operator[](unsigned int i) const {
  return i == 0 ? x : i == 1 ? y : z;
}

double& AcGePoint3d::operator[](unsigned int i) {
  return i == 0 ? x : i == 1 ? y : z;
}

double AcGePoint3d::distanceTo(const AcGePoint3d& p) const {
  return (*this - p).length();
}

bool AcGePoint3d::isEqualTo(const AcGePoint3d& p, const AcGeTol& tol) const {
  return distanceTo(p) <= tol.equalPoint();
}

AcGePoint3d& AcGePoint3d::transformBy(const AcGeMatrix3d& matrix) {
  return *this = matrix * *this;
}

AcGePoint3d& AcGePoint3d::rotateBy(double angle, const AcGeVector3d& axis, const AcGePoint3d& about) {
  return *this = about + (*this - about).rotateBy(angle, axis);
}

AcGePoint3d& AcGePoint3d::scaleBy(double factor, const AcGePoint3d& about) {
  return *this = about + (*this - about) * factor;
}

AcGePoint3d& AcGePoint3d::mirror(const AcGePlane& plane) {
  return *this -= plane.normal() * (2.0 * plane.signedDistanceTo(*this));
}

AcGePoint2d AcGePoint3d::convert2d(const AcGePlane& plane) const {
  const AcGeVector2d v = (*this - plane.pointOnPlane()).convert2d(plane);
  return {v.x, v.y};
}

AcGePoint3d AcGePoint3d::orthoProject(const AcGePlane& plane) const {
  return *this - plane.normal() * plane.signedDistanceTo(*this);
}

AcGePoint3d AcGePoint3d::project(const AcGePlane& plane, const AcGeVector3d& direction) const {
  if (direction.isZeroLength() || direction.isPerpendicularTo(plane.normal())) return *this;
  return *this - direction * (plane.signedDistanceTo(*this) / direction.dotProduct(plane.normal()));
}

AcGePoint3d operator*(const AcGeMatrix3d& matrix, const AcGePoint3d& p) {
  const auto& e = matrix.entry;
  return AcGePoint3d(e[0][3], e[1][3], e[2][3]) + matrix * p.asVector();
}
