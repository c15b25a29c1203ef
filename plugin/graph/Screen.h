// What the package asks of the screen.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// Brings the screen up to date.
ZP_EXPORT void FlushGraphics();

// The numbers of mode are what siblings pass.
enum RedrawMode { kShowEntity = 1, kHideEntity = 2 };

// kHideEntity leaves the entity out of the picture without touching the drawing, kShowEntity takes it in
// again. Non-zero when that was done, 0 for any other mode and for an id that is none of an entity of an open
// drawing.
ZP_EXPORT int EntityRedraw(const AcDbObjectId& id, int mode);

} // namespace ZP
