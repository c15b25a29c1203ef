// A direction with a length in the plane. A position is AcGePoint2d.
#pragma once

#include "host/ge/AcGe.h"
#include "host/ge/AcGeContext.h"

class AcGeVector2d {
 public:
  static const AcGeVector2d kIdentity; // the zero vector, which addition leaves as it is
  static const AcGeVector2d kXAxis;
  static const AcGeVector2d kYAxis;

  double x = 0.0;
  double y = 0.0;

  constexpr AcGeVector2d() = default;
  constexpr AcGeVector2d(double xx, double yy) : x(xx), y(yy) {}
  AcGeVector2d& set(double xx, double yy);

  constexpr AcGeVector2d operator+(const AcGeVector2d& v) const { return {x + v.x, y + v.y}; }
  constexpr AcGeVector2d operator-(const AcGeVector2d& v) const { return {x - v.x, y - v.y}; }
  constexpr AcGeVector2d operator-() const { return {-x, -y}; }
  constexpr AcGeVector2d operator*(double scale) const { return {x * scale, y * scale}; }
  constexpr AcGeVector2d operator/(double scale) const { return {x / scale, y / scale}; }
  friend constexpr AcGeVector2d operator*(double scale, const AcGeVector2d& v) { return v * scale; }
  AcGeVector2d& operator+=(const AcGeVector2d& v) { return *this = *this + v; }
  AcGeVector2d& operator-=(const AcGeVector2d& v) { return *this = *this - v; }
  AcGeVector2d& operator*=(double scale) { return *this = *this * scale; }
  AcGeVector2d& operator/=(double scale) { return *this = *this / scale; }
  // Equal within AcGeContext::gTol.
  bool operator==(const AcGeVector2d& v) const { return isEqualTo(v); }

  constexpr double dotProduct(const AcGeVector2d& v) const { return x * v.x + y * v.y; }
  // The z of the three-dimensional cross product: positive when v lies to the left of this vector.
  constexpr double crossProduct(const AcGeVector2d& v) const { return x * v.y - y * v.x; }
  double length() const;
  constexpr double lengthSqrd() const { return x * x + y * y; }
  // Radians in [0, 2 pi), counter-clockwise from the x axis; 0 for the zero vector.
  double angle() const;
  // Radians in [0, pi]; 0 when either vector is zero.
  double angleTo(const AcGeVector2d& v) const;

  // The unit vector of the same direction. A vector no longer than the tolerance is returned as it is.
  AcGeVector2d normal(const AcGeTol& tol = AcGeContext::gTol) const;
  AcGeVector2d& normalize(const AcGeTol& tol = AcGeContext::gTol);
  // This vector turned a quarter counter-clockwise, of the same length.
  constexpr AcGeVector2d perpVector() const { return {-y, x}; }
  AcGeVector2d& rotateBy(double angle);
  // Reflects in the line through the origin along the direction given; a zero direction changes nothing.
  AcGeVector2d& mirror(const AcGeVector2d& line);
  AcGeVector2d& negate();

  bool isEqualTo(const AcGeVector2d& v, const AcGeTol& tol = AcGeContext::gTol) const;
  bool isUnitLength(const AcGeTol& tol = AcGeContext::gTol) const;
  bool isZeroLength(const AcGeTol& tol = AcGeContext::gTol) const;
  // The comparisons of directions are false when either vector has zero length.
  bool isParallelTo(const AcGeVector2d& v, const AcGeTol& tol = AcGeContext::gTol) const;
  bool isCodirectionalTo(const AcGeVector2d& v, const AcGeTol& tol = AcGeContext::gTol) const;
  bool isPerpendicularTo(const AcGeVector2d& v, const AcGeTol& tol = AcGeContext::gTol) const;
};
