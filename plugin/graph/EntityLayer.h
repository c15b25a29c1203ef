// The layer of an entity.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// The name of the layer that the entity stands on. False, with layer as it was, for an id that can't be
// opened for read as an entity.
ZP_EXPORT bool GetEntityLayer(const AcDbObjectId& id, CString& layer);

} // namespace ZP
