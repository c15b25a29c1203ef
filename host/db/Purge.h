// Takes away what a drawing holds and nothing uses.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/db/AcadStatus.h"

#include <vector>

enum class PurgeBlocks { anonymous, all };

// The blocks that no insertion, dimension or table shows, directly or through blocks that are shown, and that
// no object points to. Spaces and external references are never among them.
std::vector<AcDbObjectId> acdbUnusedBlocks(const AcDbDatabase& database, PurgeBlocks which);
// Erases those with their contents. Returns how many.
std::size_t acdbPurgeBlocks(AcDbDatabase& database, PurgeBlocks which);
