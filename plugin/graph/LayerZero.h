// The layer that every drawing has under that name.
#pragma once

#include "host/db/AcDbObjectId.h"

namespace ZP {

// Null only while the layer table is open for write.
AcDbObjectId LayerZero(const AcDbDatabase& drawing);

} // namespace ZP
