// How editing commands go about a selection.
#pragma once

#include "host/db/AcDbObjectId.h"

#include <functional>
#include <vector>

class AcDbEntity;

namespace commands {

// Asks for entities. Empty when the user cancels or selects nothing.
std::vector<AcDbObjectId> AskEntities();

// Opens each for write and hands it on. Those on locked layers and those that the work fails on stay as they
// are, and the user is told how many. The number of entities that were worked on.
int ForEachForWrite(const std::vector<AcDbObjectId>& ids, const std::function<bool(AcDbEntity&)>& work);

} // namespace commands
