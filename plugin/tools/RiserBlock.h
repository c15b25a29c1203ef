// The blocks that draw a riser in plan.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// The block of that name in the working drawing, made on first use with its origin at the centre and a radius
// of one drawing unit: a circle and a point for "KOR_PMT_KXG_1.2", five circles and a point for any other
// name. Null, with the status shown, for a name that the host refuses; null without a drawing.
ZP_EXPORT AcDbObjectId GetRiserBlockID(CString name);

} // namespace ZP
