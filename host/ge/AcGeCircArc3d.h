// A circle or arc in space as drawing tools construct one. Angles count from a reference vector of its own,
// not from the object coordinate system: add refVec().angleOnPlane(plane) to have those of an AcDbArc.
#pragma once

#include "host/ge/AcGePoint3d.h"

class AcGeCircArc3d {
 public:
  // The full circle of radius 1 about the origin.
  AcGeCircArc3d() = default;
  // A full circle.
  AcGeCircArc3d(const AcGePoint3d& center, const AcGeVector3d& normal, double radius);
  AcGeCircArc3d(const AcGePoint3d& center, const AcGeVector3d& normal, const AcGeVector3d& refVec,
                double radius, double startAngle, double endAngle);
  // The arc from the first point through the second to the third. Points on a line have none: radius 0,
  // centre the first point.
  AcGeCircArc3d(const AcGePoint3d& start, const AcGePoint3d& onArc, const AcGePoint3d& end);
  AcGeCircArc3d& set(const AcGePoint3d& start, const AcGePoint3d& onArc, const AcGePoint3d& end);
  // The status is k0This, and the object is left alone, when the points lie on a line or are not finite.
  AcGeCircArc3d& set(const AcGePoint3d& start, const AcGePoint3d& onArc, const AcGePoint3d& end,
                     AcGeError& status);

  AcGePoint3d center() const { return m_center; }
  AcGeVector3d normal() const { return m_normal; } // the arc runs counter-clockwise about it
  // A unit vector from the centre towards angle 0; through three points, towards the first.
  AcGeVector3d refVec() const { return m_refVec; }
  double radius() const { return m_radius; }
  double startAng() const { return m_startAngle; } // 0 for three points
  double endAng() const { return m_endAngle; }
  AcGePoint3d startPoint() const { return pointAt(m_startAngle); }
  AcGePoint3d endPoint() const { return pointAt(m_endAngle); }
  AcGePoint3d pointAt(double angle) const;

 private:
  AcGePoint3d m_center;
  AcGeVector3d m_normal{0.0, 0.0, 1.0};
  AcGeVector3d m_refVec{1.0, 0.0, 0.0};
  double m_radius = 1.0;
  double m_startAngle = 0.0;
  double m_endAngle = 6.283185307179586; // 2 pi
};
