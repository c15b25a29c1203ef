#include "plugin/graph/CurveEnds.h"

#include "host/db/AcDbCurve.h"

bool ZP::ChangeCurveStart(AcDbCurve* curve, const AcGePoint3d& point) {
  return curve && curve->moveStartTo(point) == Acad::eOk;
}

bool ZP::ChangeCurveEnd(AcDbCurve* curve, const AcGePoint3d& point) {
  return curve && curve->moveEndTo(point) == Acad::eOk;
}
