// An unbounded plane with an origin and two axes on it, so that its points have plane coordinates.
#pragma once

#include "host/ge/AcGePoint3d.h"

class AcGePlane {
 public:
  static const AcGePlane kXYPlane;
  static const AcGePlane kYZPlane; // axes y, z
  static const AcGePlane kZXPlane; // axes z, x

  // The xy plane of the world.
  constexpr AcGePlane() = default;
  // The axes come from the arbitrary axis algorithm. A zero normal gives the world's z axis.
  AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& normal);
  // The first axis is made a unit vector, the second is made perpendicular to it. Axes that are zero or
  // parallel span nothing: the plane is then the one of the world's xy directions.
  AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis);
  AcGePlane& set(const AcGePoint3d& origin, const AcGeVector3d& normal);
  AcGePlane& set(const AcGePoint3d& origin, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis);

  AcGePoint3d pointOnPlane() const { return m_origin; }
  AcGeVector3d normal() const { return m_xAxis.crossProduct(m_yAxis); }
  void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis) const;
  // a x + b y + c z + d = 0, where (a, b, c) is the unit normal.
  void getCoefficients(double& a, double& b, double& c, double& d) const;

  AcGePoint3d evalPoint(const AcGePoint2d& planeCoordinates) const;
  // Positive on the side that the normal points to.
  double signedDistanceTo(const AcGePoint3d& point) const;
  double distanceTo(const AcGePoint3d& point) const;
  AcGePoint3d closestPointTo(const AcGePoint3d& point) const { return point.orthoProject(*this); }
  bool isOn(const AcGePoint3d& point, const AcGeTol& tol = AcGeContext::gTol) const;
  AcGePlane& transformBy(const AcGeMatrix3d& matrix);

 private:
  constexpr AcGePlane(const AcGeVector3d& x, const AcGeVector3d& y) : m_xAxis(x), m_yAxis(y) {}

  AcGePoint3d m_origin{0.0, 0.0, 0.0};
  AcGeVector3d m_xAxis{1.0, 0.0, 0.0}; // unit vectors at right angles
  AcGeVector3d m_yAxis{0.0, 1.0, 0.0};
};
