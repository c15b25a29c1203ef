// Trimming and extending the curves of a drawing.
#pragma once

#include "plugin/base/ZpExport.h"

class AcDbCurve;
class AcGePoint3d;

namespace ZP {

// Moves the start or the end of a line, polyline or arc to the point, which lies on the curve or on its
// extension; the rest of the curve, its widths and properties stay as they were. A closed polyline is opened:
// it runs from its first vertex round to it. False, with nothing changed, for null, for a curve that isn't
// open for write, for a point that lies elsewhere, where nothing of the curve would be left, and for a
// circle.
ZP_EXPORT bool ChangeCurveStart(AcDbCurve* curve, const AcGePoint3d& point);
ZP_EXPORT bool ChangeCurveEnd(AcDbCurve* curve, const AcGePoint3d& point);

} // namespace ZP
