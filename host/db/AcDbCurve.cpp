#include "host/db/AcDbCurve.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbCurve, AcDbEntity)

Acad::ErrorStatus AcDbCurve::getStartPoint(AcGePoint3d&) const {
  return Acad::eNotApplicable;
}
Acad::ErrorStatus AcDbCurve::getEndPoint(AcGePoint3d&) const {
  return Acad::eNotApplicable;
}
