// The clip of a block insertion: a polygon beyond which its block isn't drawn, kept with the insertion as a
// spatial filter.
#pragma once

#include "host/scene/Pen.h"

namespace scene {

// Clips what the pen draws from here on, where its insertion has a filter that is switched on.
void ClipToBlock(Pen& pen, const AcGeMatrix3d& blockTransform);

} // namespace scene
