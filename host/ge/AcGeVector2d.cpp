// Lengths, angles and comparisons of plane vectors.
#include "host/ge/AcGeVector2d.h"

#include <cmath>
#include <numbers>

constinit const AcGeVector2d AcGeVector2d::kIdentity{0.0, 0.0};
constinit const AcGeVector2d AcGeVector2d::kXAxis{1.0, 0.0};
constinit const AcGeVector2d AcGeVector2d::kYAxis{0.0, 1.0};

AcGeVector2d& AcGeVector2d::set(double xx, double yy) {
  return *this = AcGeVector2d(xx, yy);
}

double AcGeVector2d::length() const {
  return std::hypot(x, y);
}

double AcGeVector2d::angle() const {
  const double angle = std::atan2(y, x);
  if (angle >= 0.0) return angle;
  const double turned = angle + 2.0 * std::numbers::pi;
  // An angle just below zero rounds to the full turn, which is outside the range promised.
  return turned < 2.0 * std::numbers::pi ? turned : 0.0;
}

double AcGeVector2d::angleTo(const AcGeVector2d& v) const {
  const AcGeVector2d a = normal();
  const AcGeVector2d b = v.normal();
  return std::atan2(std::fabs(a.crossProduct(b)), a.dotProduct(b));
}

AcGeVector2d AcGeVector2d::normal(const AcGeTol& tol) const {
  const double size = length();
  return size > tol.equalVector() ? *this / size : *this;
}

AcGeVector2d& AcGeVector2d::normalize(const AcGeTol& tol) {
  return *this = normal(tol);
}

AcGeVector2d& AcGeVector2d::rotateBy(double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return *this = AcGeVector2d(x * c - y * s, x * s + y * c);
}

AcGeVector2d& AcGeVector2d::mirror(const AcGeVector2d& line) {
  const AcGeVector2d u = line.normal();
  if (!u.isUnitLength()) return *this;
  return *this = u * (2.0 * dotProduct(u)) - *this;
}

AcGeVector2d& AcGeVector2d::negate() {
  return *this = -*this;
}

bool AcGeVector2d::isEqualTo(const AcGeVector2d& v, const AcGeTol& tol) const {
  return (*this - v).length() <= tol.equalVector();
}

bool AcGeVector2d::isUnitLength(const AcGeTol& tol) const {
  return std::fabs(length() - 1.0) <= tol.equalVector();
}

bool AcGeVector2d::isZeroLength(const AcGeTol& tol) const {
  return length() <= tol.equalVector();
}

bool AcGeVector2d::isParallelTo(const AcGeVector2d& v, const AcGeTol& tol) const {
  return isCodirectionalTo(v, tol) || isCodirectionalTo(-v, tol);
}

bool AcGeVector2d::isCodirectionalTo(const AcGeVector2d& v, const AcGeTol& tol) const {
  if (isZeroLength(tol) || v.isZeroLength(tol)) return false;
  return normal(tol).isEqualTo(v.normal(tol), tol);
}

bool AcGeVector2d::isPerpendicularTo(const AcGeVector2d& v, const AcGeTol& tol) const {
  if (isZeroLength(tol) || v.isZeroLength(tol)) return false;
  return std::fabs(normal(tol).dotProduct(v.normal(tol))) <= tol.equalVector();
}
