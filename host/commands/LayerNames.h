// Layers of the current drawing by name, as the layer commands use them.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"

#include <vector>

namespace commands {

CString CurrentLayerName();
// Null for an unknown name.
AcDbObjectId LayerByName(const CString& name);
// The layers whose names fit a list of patterns, in table order.
std::vector<AcDbObjectId> LayersByPattern(const CString& patterns);
// False, with the user told, for a layer that the drawing lacks or that is frozen.
bool MakeLayerCurrent(const CString& name);

} // namespace commands
