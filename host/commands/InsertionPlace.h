// Where and how large a block is inserted: the prompts of INSERT between the block and its attributes.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/ge/AcGePoint3d.h"
#include "host/ge/AcGeVector3d.h"

#include <optional>

namespace commands {

struct InsertionPlace {
  AcGePoint3d point;
  AcGeVector3d scale{1, 1, 1};
  double rotation = 0; // radians
};

// Shows the block on its way. Nothing for Escape.
std::optional<InsertionPlace> AskInsertionPlace(const AcDbObjectId& block);

} // namespace commands
