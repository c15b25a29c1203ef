// What the package asks of the screen.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// Brings the screen up to date.
ZP_EXPORT void FlushGraphics();

// mode 2 leaves the entity out of the picture without touching the drawing, 1 takes it in again. Non-zero
// when that was done, 0 for any other mode and for an id that is none of an entity of an open drawing.
ZP_EXPORT int EntityRedraw(const AcDbObjectId& id, int mode);

} // namespace ZP
