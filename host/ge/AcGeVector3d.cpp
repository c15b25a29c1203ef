// Lengths, angles and transformations of vectors. Their comparisons stand in AcGeVector3dCompare.cpp.
#include "host/ge/AcGeVector3d.h"

#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/AcGePlane.h"
#include "host/ge/ArbitraryAxis.h"

#include <cmath>
#include <limits>
#include <numbers>

constinit const AcGeVector3d AcGeVector3d::kIdentity{0.0, 0.0, 0.0};
constinit const AcGeVector3d AcGeVector3d::kXAxis{1.0, 0.0, 0.0};
constinit const AcGeVector3d AcGeVector3d::kYAxis{0.0, 1.0, 0.0};
constinit const AcGeVector3d AcGeVector3d::kZAxis{0.0, 0.0, 1.0};

AcGeVector3d& AcGeVector3d::set(double xx, double yy, double zz) {
  return *this = AcGeVector3d(xx, yy, zz);
}

double AcGeVector3d::operator[](unsigned int i) const {
  return i == 0 ? x : i == 1 ? y : z;
}

double& AcGeVector3d::operator[](unsigned int i) {
  return i == 0 ? x : i == 1 ? y : z;
}

double AcGeVector3d::length() const {
  const double squared = lengthSqrd();
  // Squares of very large or very small components leave the range of a double; the slow way does not.
  if (squared >= std::numeric_limits<double>::min() * 0x1p52 &&
      squared <= std::numeric_limits<double>::max()) {
    return std::sqrt(squared);
  }
  return std::hypot(x, y, z);
}

double AcGeVector3d::angleTo(const AcGeVector3d& v) const {
  const AcGeVector3d a = normal();
  const AcGeVector3d b = v.normal();
  // The arc cosine of a scalar product loses half of the digits near 0 and pi; this does not.
  return std::atan2(a.crossProduct(b).length(), a.dotProduct(b));
}

double AcGeVector3d::angleTo(const AcGeVector3d& v, const AcGeVector3d& reference) const {
  const double angle = angleTo(v);
  if (crossProduct(v).dotProduct(reference) >= 0.0 || angle == 0.0) return angle;
  return 2.0 * std::numbers::pi - angle;
}

double AcGeVector3d::angleOnPlane(const AcGePlane& plane) const {
  return convert2d(plane).angle();
}

AcGeVector2d AcGeVector3d::convert2d(const AcGePlane& plane) const {
  AcGePoint3d origin;
  AcGeVector3d xAxis;
  AcGeVector3d yAxis;
  plane.getCoordSystem(origin, xAxis, yAxis);
  return {dotProduct(xAxis), dotProduct(yAxis)};
}

AcGeVector3d AcGeVector3d::normal(const AcGeTol& tol) const {
  const double size = length();
  return size > tol.equalVector() ? *this / size : *this;
}

AcGeVector3d& AcGeVector3d::normalize(const AcGeTol& tol) {
  return *this = normal(tol);
}

AcGeVector3d& AcGeVector3d::normalize(const AcGeTol& tol, AcGeError& status) {
  status = isZeroLength(tol) ? AcGe::k0This : AcGe::eOk;
  return normalize(tol);
}

AcGeVector3d AcGeVector3d::perpVector() const {
  if (isZeroLength()) return kIdentity;
  return ge::ArbitraryAxis(*this).xAxis;
}

AcGeVector3d& AcGeVector3d::rotateBy(double angle, const AcGeVector3d& axis) {
  return transformBy(AcGeMatrix3d::rotation(angle, axis));
}

AcGeVector3d& AcGeVector3d::mirror(const AcGeVector3d& normalToPlane) {
  const AcGeVector3d n = normalToPlane.normal();
  if (!n.isUnitLength()) return *this;
  return *this -= n * (2.0 * dotProduct(n));
}

AcGeVector3d& AcGeVector3d::transformBy(const AcGeMatrix3d& matrix) {
  return *this = matrix * *this;
}

AcGeVector3d& AcGeVector3d::negate() {
  return *this = -*this;
}

AcGeVector3d operator*(const AcGeMatrix3d& matrix, const AcGeVector3d& v) {
  const auto& e = matrix.entry;
  return {e[0][0] * v.x + e[0][1] * v.y + e[0][2] * v.z, e[1][0] * v.x + e[1][1] * v.y + e[1][2] * v.z,
          e[2][0] * v.x + e[2][1] * v.y + e[2][2] * v.z};
}
