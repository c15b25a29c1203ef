// A position in space. A displacement is AcGeVector3d.
#pragma once

#include "host/ge/AcGePoint2d.h"
#include "host/ge/AcGeVector3d.h"

class AcGePoint3d {
 public:
  static const AcGePoint3d kOrigin;

  double x = 0.0;
  double y = 0.0;
  double z = 0.0;

  constexpr AcGePoint3d() = default;
  constexpr AcGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}
  // The point of a plane that has these plane coordinates.
  AcGePoint3d(const AcGePlane& plane, const AcGePoint2d& point);
  AcGePoint3d& set(double xx, double yy, double zz);
  AcGePoint3d& set(const AcGePlane& plane, const AcGePoint2d& point);
  // 0, 1 and 2 stand for x, y and z.
  double operator[](unsigned int i) const;
  double& operator[](unsigned int i);

  constexpr AcGeVector3d asVector() const { return {x, y, z}; }
  constexpr AcGePoint3d operator+(const AcGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
  constexpr AcGePoint3d operator-(const AcGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
  constexpr AcGeVector3d operator-(const AcGePoint3d& p) const { return {x - p.x, y - p.y, z - p.z}; }
  constexpr AcGePoint3d operator*(double scale) const { return {x * scale, y * scale, z * scale}; }
  constexpr AcGePoint3d operator/(double scale) const { return {x / scale, y / scale, z / scale}; }
  AcGePoint3d& operator+=(const AcGeVector3d& v) { return *this = *this + v; }
  AcGePoint3d& operator-=(const AcGeVector3d& v) { return *this = *this - v; }
  AcGePoint3d& operator*=(double scale) { return *this = *this * scale; }
  AcGePoint3d& operator/=(double scale) { return *this = *this / scale; }
  // Equal within AcGeContext::gTol.
  bool operator==(const AcGePoint3d& p) const { return isEqualTo(p); }

  double distanceTo(const AcGePoint3d& p) const;
  bool isEqualTo(const AcGePoint3d& p, const AcGeTol& tol = AcGeContext::gTol) const;

  AcGePoint3d& transformBy(const AcGeMatrix3d& matrix);
  // Turns by radians about the axis through a point; a zero axis changes nothing.
  AcGePoint3d& rotateBy(double angle, const AcGeVector3d& axis, const AcGePoint3d& about = kOrigin);
  AcGePoint3d& scaleBy(double factor, const AcGePoint3d& about = kOrigin);
  AcGePoint3d& mirror(const AcGePlane& plane);

  // The coordinates along the plane's axes, the distance from the plane being dropped.
  AcGePoint2d convert2d(const AcGePlane& plane) const;
  // The foot of the perpendicular on the plane.
  AcGePoint3d orthoProject(const AcGePlane& plane) const;
  // Where the line through this point along a direction meets the plane. The point itself when the direction
  // is parallel to the plane.
  AcGePoint3d project(const AcGePlane& plane, const AcGeVector3d& direction) const;
};

AcGePoint3d operator*(const AcGeMatrix3d& matrix, const AcGePoint3d& p);
