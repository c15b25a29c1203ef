// Lengths and areas that the user traces in the drawing.
#pragma once

#include "host/ge/AcGePoint3d.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// Each works under a write lock on the current document, if it can be had, and leaves the drawing as it was.
// A path that the user never begins measures 0. See CZPMeasureJig.

// Metres, of a drawing in millimetres.
ZP_EXPORT double GetLengthFromDwg();
// first and last become the ends of the path; they stay as they are when it never began.
ZP_EXPORT double GetLengthFromDwg(AcGePoint3d& first, AcGePoint3d& last);
// Square metres, by the drawing's unit.
ZP_EXPORT double GetAreaFromDwg();

} // namespace ZP
