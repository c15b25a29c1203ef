// What all curves share: ends and whether they close.
#pragma once

#include "host/db/AcDbEntity.h"

class AcDbCurve : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbCurve);

 public:
  virtual bool isClosed() const { return false; }
  // World coordinates; eNotApplicable for a circle.
  virtual Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
  virtual Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;
};
