// A position in the plane. A displacement is AcGeVector2d.
#pragma once

#include "host/ge/AcGeVector2d.h"

class AcGePoint2d {
 public:
  static const AcGePoint2d kOrigin;

  double x = 0.0;
  double y = 0.0;

  constexpr AcGePoint2d() = default;
  constexpr AcGePoint2d(double xx, double yy) : x(xx), y(yy) {}
  AcGePoint2d& set(double xx, double yy);

  constexpr AcGeVector2d asVector() const { return {x, y}; }
  constexpr AcGePoint2d operator+(const AcGeVector2d& v) const { return {x + v.x, y + v.y}; }
  constexpr AcGePoint2d operator-(const AcGeVector2d& v) const { return {x - v.x, y - v.y}; }
  constexpr AcGeVector2d operator-(const AcGePoint2d& p) const { return {x - p.x, y - p.y}; }
  constexpr AcGePoint2d operator*(double scale) const { return {x * scale, y * scale}; }
  constexpr AcGePoint2d operator/(double scale) const { return {x / scale, y / scale}; }
  AcGePoint2d& operator+=(const AcGeVector2d& v) { return *this = *this + v; }
  AcGePoint2d& operator-=(const AcGeVector2d& v) { return *this = *this - v; }
  // Equal within AcGeContext::gTol.
  bool operator==(const AcGePoint2d& p) const { return isEqualTo(p); }

  double distanceTo(const AcGePoint2d& p) const;
  bool isEqualTo(const AcGePoint2d& p, const AcGeTol& tol = AcGeContext::gTol) const;
  // Turns counter-clockwise by radians about a point.
  AcGePoint2d& rotateBy(double angle, const AcGePoint2d& about = kOrigin);
  AcGePoint2d& scaleBy(double factor, const AcGePoint2d& about = kOrigin);
};
