// Finds and lists the blocks that users insert by name.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"

namespace commands {

// The block of that name that may be inserted; null for none, and for spaces and anonymous blocks.
AcDbObjectId BlockByName(const CString& name);

// Asks for a pattern and lists the blocks that fit, each with what it is.
void ListBlocks();

} // namespace commands
