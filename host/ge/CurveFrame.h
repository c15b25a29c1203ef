// The plane that a curve lies in, with the axes its plane coordinates refer to.
#pragma once

#include "host/ge/AcGePoint3d.h"

namespace ge {

struct CurveFrame {
  AcGePoint3d origin;
  AcGeVector3d xAxis{1.0, 0.0, 0.0}; // three unit vectors at right angles, right-handed
  AcGeVector3d yAxis{0.0, 1.0, 0.0};
  AcGeVector3d normal{0.0, 0.0, 1.0};

  // The object coordinate system of a normal, moved along it by the elevation. A normal that is zero or not
  // finite counts as the world's z axis.
  static CurveFrame OfNormal(const AcGeVector3d& normal, double elevation);
  // A plane that contains the line: the horizontal one where there is one, so that its coordinates are those
  // of the world. The points must be finite.
  static CurveFrame OfLine(const AcGePoint3d& start, const AcGePoint3d& end);
  // The plane through a line's start along a unit direction and through another point. A point on the line
  // leaves the choice of the plane open.
  static CurveFrame Through(const AcGePoint3d& start, const AcGeVector3d& direction,
                            const AcGePoint3d& other);

  AcGePoint3d ToWorld(const AcGePoint2d& p) const { return origin + xAxis * p.x + yAxis * p.y; }
  AcGePoint2d ToPlane(const AcGePoint3d& p) const;
  // Signed distance from the plane.
  double Height(const AcGePoint3d& p) const { return (p - origin).dotProduct(normal); }
  double Elevation() const { return origin.asVector().dotProduct(normal); }
  // Whether plane coordinates mean the same in both, but for a shift along the normal.
  bool SharesAxes(const CurveFrame& other) const;
};

} // namespace ge
