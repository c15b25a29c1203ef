// How the usual transformations are built: moves, turns, scalings, reflections and changes of coordinates.
#include "host/ge/AcGeMatrix3d.h"

#include "host/ge/AcGePlane.h"
#include "host/ge/ArbitraryAxis.h"

#include <cmath>

namespace {

// Adds the translation that leaves a point where it is.
void KeepFixed(AcGeMatrix3d& linear, const AcGePoint3d& center) {
  linear.setTranslation(center.asVector() - linear * center.asVector());
}

} // namespace

AcGeMatrix3d& AcGeMatrix3d::setTranslation(const AcGeVector3d& v) {
  entry[0][3] = v.x;
  entry[1][3] = v.y;
  entry[2][3] = v.z;
  return *this;
}

void AcGeMatrix3d::getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis,
                                  AcGeVector3d& zAxis) const {
  origin.set(entry[0][3], entry[1][3], entry[2][3]);
  xAxis.set(entry[0][0], entry[1][0], entry[2][0]);
  yAxis.set(entry[0][1], entry[1][1], entry[2][1]);
  zAxis.set(entry[0][2], entry[1][2], entry[2][2]);
}

AcGeMatrix3d& AcGeMatrix3d::setCoordSystem(const AcGePoint3d& origin, const AcGeVector3d& xAxis,
                                           const AcGeVector3d& yAxis, const AcGeVector3d& zAxis) {
  setToIdentity();
  const AcGeVector3d columns[4] = {xAxis, yAxis, zAxis, origin.asVector()};
  for (int column = 0; column < 4; ++column) {
    entry[0][column] = columns[column].x;
    entry[1][column] = columns[column].y;
    entry[2][column] = columns[column].z;
  }
  return *this;
}

AcGeMatrix3d& AcGeMatrix3d::setToIdentity() {
  return *this = kIdentity;
}

AcGeMatrix3d& AcGeMatrix3d::setToTranslation(const AcGeVector3d& v) {
  return setToIdentity().setTranslation(v);
}

AcGeMatrix3d& AcGeMatrix3d::setToRotation(double angle, const AcGeVector3d& axis, const AcGePoint3d& center) {
  setToIdentity();
  const double size = axis.length();
  if (!(size > 0.0)) return *this;
  const AcGeVector3d u = axis / size;
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  // Each world axis e goes to u (u.e) (1 - c) + e c + (u x e) s.
  const auto turned = [&](const AcGeVector3d& e) {
    return u * (u.dotProduct(e) * (1.0 - c)) + e * c + u.crossProduct(e) * s;
  };
  setCoordSystem(AcGePoint3d::kOrigin, turned(AcGeVector3d::kXAxis), turned(AcGeVector3d::kYAxis),
                 turned(AcGeVector3d::kZAxis));
  KeepFixed(*this, center);
  return *this;
}

AcGeMatrix3d& AcGeMatrix3d::setToScaling(double factor, const AcGePoint3d& center) {
  setToIdentity();
  for (int i = 0; i < 3; ++i) entry[i][i] = factor;
  KeepFixed(*this, center);
  return *this;
}

AcGeMatrix3d& AcGeMatrix3d::setToMirroring(const AcGePlane& plane) {
  const AcGeVector3d n = plane.normal();
  setCoordSystem(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis - n * (2.0 * n.x),
                 AcGeVector3d::kYAxis - n * (2.0 * n.y), AcGeVector3d::kZAxis - n * (2.0 * n.z));
  KeepFixed(*this, plane.pointOnPlane());
  return *this;
}

AcGeMatrix3d& AcGeMatrix3d::setToMirroring(const AcGePoint3d& point) {
  return setToScaling(-1.0, point);
}

AcGeMatrix3d& AcGeMatrix3d::setToAlignCoordSys(const AcGePoint3d& fromOrigin, const AcGeVector3d& fromX,
                                               const AcGeVector3d& fromY, const AcGeVector3d& fromZ,
                                               const AcGePoint3d& toOrigin, const AcGeVector3d& toX,
                                               const AcGeVector3d& toY, const AcGeVector3d& toZ) {
  AcGeMatrix3d back;
  if (!AcGeMatrix3d().setCoordSystem(fromOrigin, fromX, fromY, fromZ).inverse(back)) return setToIdentity();
  return setCoordSystem(toOrigin, toX, toY, toZ).postMultBy(back);
}

AcGeMatrix3d& AcGeMatrix3d::setToPlaneToWorld(const AcGeVector3d& normal) {
  const ge::ObjectAxes axes = ge::ArbitraryAxis(normal);
  return setCoordSystem(AcGePoint3d::kOrigin, axes.xAxis, axes.yAxis, axes.normal);
}

AcGeMatrix3d& AcGeMatrix3d::setToPlaneToWorld(const AcGePlane& plane) {
  AcGePoint3d origin;
  AcGeVector3d x;
  AcGeVector3d y;
  plane.getCoordSystem(origin, x, y);
  return setCoordSystem(origin, x, y, plane.normal());
}

// The axes are orthonormal, so that the inverse is the transpose: exact, and never singular.
AcGeMatrix3d& AcGeMatrix3d::setToWorldToPlane(const AcGeVector3d& normal) {
  return setToPlaneToWorld(normal).transposeIt();
}

AcGeMatrix3d& AcGeMatrix3d::setToWorldToPlane(const AcGePlane& plane) {
  const AcGeVector3d origin = plane.pointOnPlane().asVector();
  setToPlaneToWorld(plane).setTranslation(AcGeVector3d::kIdentity).transposeIt();
  return setTranslation(-(*this * origin));
}

AcGeMatrix3d AcGeMatrix3d::translation(const AcGeVector3d& v) {
  return AcGeMatrix3d().setToTranslation(v);
}

AcGeMatrix3d AcGeMatrix3d::rotation(double angle, const AcGeVector3d& axis, const AcGePoint3d& center) {
  return AcGeMatrix3d().setToRotation(angle, axis, center);
}

AcGeMatrix3d AcGeMatrix3d::scaling(double factor, const AcGePoint3d& center) {
  return AcGeMatrix3d().setToScaling(factor, center);
}

AcGeMatrix3d AcGeMatrix3d::mirroring(const AcGePlane& plane) {
  return AcGeMatrix3d().setToMirroring(plane);
}

AcGeMatrix3d AcGeMatrix3d::mirroring(const AcGePoint3d& point) {
  return AcGeMatrix3d().setToMirroring(point);
}

AcGeMatrix3d AcGeMatrix3d::alignCoordSys(const AcGePoint3d& fromOrigin, const AcGeVector3d& fromX,
                                         const AcGeVector3d& fromY, const AcGeVector3d& fromZ,
                                         const AcGePoint3d& toOrigin, const AcGeVector3d& toX,
                                         const AcGeVector3d& toY, const AcGeVector3d& toZ) {
  return AcGeMatrix3d().setToAlignCoordSys(fromOrigin, fromX, fromY, fromZ, toOrigin, toX, toY, toZ);
}

AcGeMatrix3d AcGeMatrix3d::planeToWorld(const AcGeVector3d& normal) {
  return AcGeMatrix3d().setToPlaneToWorld(normal);
}

AcGeMatrix3d AcGeMatrix3d::planeToWorld(const AcGePlane& plane) {
  return AcGeMatrix3d().setToPlaneToWorld(plane);
}

AcGeMatrix3d AcGeMatrix3d::worldToPlane(const AcGeVector3d& normal) {
  return AcGeMatrix3d().setToWorldToPlane(normal);
}

AcGeMatrix3d AcGeMatrix3d::worldToPlane(const AcGePlane& plane) {
  return AcGeMatrix3d().setToWorldToPlane(plane);
}
