// What all curves share: ends, parameters, distances, the nearest point, splitting. All of it is answered by
// the curve kernel of host/ge; a class only tells its geometry and takes it back. How parameters count is
// told in docs/geometry.md. Points are world coordinates.
//
// Statuses of all of them: eInvalidInput for geometry or arguments that are no finite numbers,
// eDegenerateGeometry where the curve has no such thing (no vertex, a negative radius, no length),
// eOutOfRange for a parameter or a distance beyond the ends, ePointNotOnEntity, eNotApplicable for a class
// that tells no geometry. The argument that takes the result is left alone then.
#pragma once

#include "host/db/AcDbEntity.h"

#include <vector>

namespace ge {
class Curve;
}

class AcDbCurve : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbCurve);

 public:
  // The geometry as the kernel takes it. Custom classes that override these two get everything below.
  virtual Acad::ErrorStatus getCurve(ge::Curve& curve) const;
  // Takes the geometry of a curve of the class's own kind; eNotThatKindOfClass for another kind. Must be open
  // for write. What is no geometry (layer, width, thickness) stays.
  virtual Acad::ErrorStatus setCurve(const ge::Curve& curve);

  virtual bool isClosed() const { return false; }
  // The start and the end of a closed curve are one point; a circle's lies at the angle 0.
  virtual Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
  virtual Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;
  Acad::ErrorStatus getStartParam(double& parameter) const;
  Acad::ErrorStatus getEndParam(double& parameter) const;
  Acad::ErrorStatus getPointAtParam(double parameter, AcGePoint3d& point) const;
  Acad::ErrorStatus getParamAtPoint(const AcGePoint3d& point, double& parameter) const;
  Acad::ErrorStatus getDistAtParam(double parameter, double& distance) const;
  Acad::ErrorStatus getParamAtDist(double distance, double& parameter) const;
  Acad::ErrorStatus getDistAtPoint(const AcGePoint3d& point, double& distance) const;
  Acad::ErrorStatus getPointAtDist(double distance, AcGePoint3d& point) const;
  Acad::ErrorStatus getFirstDeriv(double parameter, AcGeVector3d& derivative) const;
  Acad::ErrorStatus getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& derivative) const;
  // With extend also on the extension (a line's infinite line, an arc's circle, an open polyline's end
  // segments).
  Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& point, AcGePoint3d& onCurve,
                                      bool extend = false) const;
  // Of an open curve the area that its chord closes.
  Acad::ErrorStatus getArea(double& area) const;

  // The parts between the places, as new entities with the properties and extended data of this one that the
  // caller owns; appended to parts. A circle gives arcs. Cuts may come in any order; what is cut nowhere
  // gives one part. On failure nothing is appended.
  Acad::ErrorStatus getSplitCurves(const std::vector<double>& parameters,
                                   std::vector<AcDbCurve*>& parts) const;
  Acad::ErrorStatus getSplitCurves(const std::vector<AcGePoint3d>& points,
                                   std::vector<AcDbCurve*>& parts) const;

  // Changes of the geometry; the object must be open for write.

  // Moves the start or the end along the curve or its extension to the point; the rest stays. A closed
  // polyline opens. eNotApplicable for a circle, eOutOfRange for a line's end moved past the other one.
  Acad::ErrorStatus moveStartTo(const AcGePoint3d& point);
  Acad::ErrorStatus moveEndTo(const AcGePoint3d& point);
  // The same under the name that tells the end by a flag.
  Acad::ErrorStatus extend(bool start, const AcGePoint3d& toPoint);
  // Runs the other way through the same points.
  virtual Acad::ErrorStatus reverseCurve();
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;
};
