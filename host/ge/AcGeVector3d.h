// A direction with a length in space. A position is AcGePoint3d.
#pragma once

#include "host/ge/AcGe.h"
#include "host/ge/AcGeContext.h"
#include "host/ge/AcGeVector2d.h"

class AcGeMatrix3d;
class AcGePlane;

class AcGeVector3d {
 public:
  static const AcGeVector3d kIdentity; // the zero vector, which addition leaves as it is
  static const AcGeVector3d kXAxis;
  static const AcGeVector3d kYAxis;
  static const AcGeVector3d kZAxis;

  double x = 0.0;
  double y = 0.0;
  double z = 0.0;

  constexpr AcGeVector3d() = default;
  constexpr AcGeVector3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}
  AcGeVector3d& set(double xx, double yy, double zz);
  // 0, 1 and 2 stand for x, y and z.
  double operator[](unsigned int i) const;
  double& operator[](unsigned int i);

  constexpr AcGeVector3d operator+(const AcGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
  constexpr AcGeVector3d operator-(const AcGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
  constexpr AcGeVector3d operator-() const { return {-x, -y, -z}; }
  constexpr AcGeVector3d operator*(double scale) const { return {x * scale, y * scale, z * scale}; }
  constexpr AcGeVector3d operator/(double scale) const { return {x / scale, y / scale, z / scale}; }
  friend constexpr AcGeVector3d operator*(double scale, const AcGeVector3d& v) { return v * scale; }
  AcGeVector3d& operator+=(const AcGeVector3d& v) { return *this = *this + v; }
  AcGeVector3d& operator-=(const AcGeVector3d& v) { return *this = *this - v; }
  AcGeVector3d& operator*=(double scale) { return *this = *this * scale; }
  AcGeVector3d& operator/=(double scale) { return *this = *this / scale; }
  // Equal within AcGeContext::gTol.
  bool operator==(const AcGeVector3d& v) const { return isEqualTo(v); }

  constexpr double dotProduct(const AcGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
  constexpr AcGeVector3d crossProduct(const AcGeVector3d& v) const {
    return {y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x};
  }
  double length() const;
  constexpr double lengthSqrd() const { return dotProduct(*this); }
  // Radians in [0, pi]; 0 when either vector is zero.
  double angleTo(const AcGeVector3d& v) const;
  // Radians in [0, 2 pi), counter-clockwise as seen from the tip of the reference vector.
  double angleTo(const AcGeVector3d& v, const AcGeVector3d& reference) const;
  // Radians in [0, 2 pi) from the plane's first axis to this vector's projection on the plane.
  double angleOnPlane(const AcGePlane& plane) const;
  // The components along the plane's two axes.
  AcGeVector2d convert2d(const AcGePlane& plane) const;

  // The unit vector of the same direction. A vector no longer than the tolerance is returned as it is; the
  // status, where asked for, is then k0This.
  AcGeVector3d normal(const AcGeTol& tol = AcGeContext::gTol) const;
  AcGeVector3d& normalize(const AcGeTol& tol = AcGeContext::gTol);
  AcGeVector3d& normalize(const AcGeTol& tol, AcGeError& status);
  // A unit vector at right angles to this one: the x axis of this normal's object coordinate system. For a
  // vector in the xy plane it is its direction turned a quarter counter-clockwise. Zero for a zero vector.
  AcGeVector3d perpVector() const;
  // Turns by radians about an axis through the origin; a zero axis changes nothing.
  AcGeVector3d& rotateBy(double angle, const AcGeVector3d& axis);
  // Reflects in the plane through the origin with the normal given; a zero normal changes nothing.
  AcGeVector3d& mirror(const AcGeVector3d& normalToPlane);
  AcGeVector3d& transformBy(const AcGeMatrix3d& matrix);
  AcGeVector3d& negate();

  bool isEqualTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;
  bool isUnitLength(const AcGeTol& tol = AcGeContext::gTol) const;
  bool isZeroLength(const AcGeTol& tol = AcGeContext::gTol) const;
  // The comparisons of directions are false when either vector has zero length; the status names it.
  bool isParallelTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;
  bool isParallelTo(const AcGeVector3d& v, const AcGeTol& tol, AcGeError& status) const;
  bool isCodirectionalTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;
  bool isCodirectionalTo(const AcGeVector3d& v, const AcGeTol& tol, AcGeError& status) const;
  bool isPerpendicularTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;
  bool isPerpendicularTo(const AcGeVector3d& v, const AcGeTol& tol, AcGeError& status) const;
};

AcGeVector3d operator*(const AcGeMatrix3d& matrix, const AcGeVector3d& v);
