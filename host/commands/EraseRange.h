// Takes back what a command has put into a block.
#pragma once

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"

#include <algorithm>

namespace commands {

// Erases the entities of the block from the begin-th on and before the end-th, on locked layers too.
inline void EraseRange(const AcDbObjectId& block, std::size_t begin, std::size_t end = SIZE_MAX) {
  const std::vector<AcDbObjectId> ids = AcDbBlockTableRecord::cast(block.object())->entities();
  for (std::size_t i = begin; i < std::min(end, ids.size()); ++i)
    if (!ids[i].isErased()) block.database()->eraseWhole(*ids[i].object());
}

} // namespace commands
