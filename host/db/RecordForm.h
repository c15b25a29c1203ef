// A record of one drawing in the form of another: with or without the markers that came with R13.
#pragma once

#include "host/db/DrawingForm.h"

namespace dxf {

// Records of the same form come back as they are. An entity of an old drawing gets the markers of its type
// where the host knows them, and otherwise that of all entities.
DxfRecord inFormOf(const DxfRecord& record, const DrawingForm& from, const DrawingForm& to);

} // namespace dxf
