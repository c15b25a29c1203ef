// What entities draw themselves into. Extents, picking, window selection, export and the canvas are all
// implementations of it, so an entity tells its shape once.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/db/AcGiSubEntityTraits.h"
#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/AcGePoint3d.h"
#include "host/ge/AcGeVector3d.h"

#include <span>

class AcDbEntity;

class AcGiWorldDraw {
 public:
  virtual ~AcGiWorldDraw() = default;

  // An entity's drawing begins and ends; nested for the contents of insertions. What is not drawn (its layer
  // is off or frozen, it is invisible) is left out by beginEntity giving false.
  virtual bool beginEntity(const AcDbEntity&) { return true; }
  virtual void endEntity(const AcDbEntity&) {}

  virtual void point(const AcGePoint3d& at) = 0;
  virtual void polyline(std::span<const AcGePoint3d> points) = 0;
  // A circular arc, anticlockwise about normal from startAngle by sweep (radians, above 0, 2 pi for a
  // circle); angles count from xAxis, which lies in the plane and has length 1.
  virtual void circularArc(const AcGePoint3d& centre, double radius, const AcGeVector3d& normal,
                           const AcGeVector3d& xAxis, double startAngle, double sweep) = 0;
  // A line of text at its insertion point; direction and normal have length 1, height in drawing units.
  virtual void text(const AcGePoint3d& at, const AcGeVector3d& normal, const AcGeVector3d& direction,
                    double height, double widthFactor, const CString& text) = 0;

  // Everything until popModelTransform is drawn through the matrix; they nest.
  virtual void pushModelTransform(const AcGeMatrix3d& matrix) = 0;
  virtual void popModelTransform() = 0;

  // With what the next parts are drawn. Who draws by entity (beginEntity) need not look.
  virtual AcGiSubEntityTraits& subEntityTraits() { return m_traits; }

 private:
  AcGiSubEntityTraits m_traits;
};
