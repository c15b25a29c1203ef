// In which order the entities of a space or block are painted: that of the file, unless the drawing keeps a
// table of another (what was sent behind or brought in front).
#pragma once

#include "host/db/AcDbObjectId.h"

#include <unordered_map>
#include <vector>

class AcDbBlockTableRecord;

namespace scene {

class DrawOrder {
 public:
  // Stays valid while this does and the block isn't changed.
  const std::vector<AcDbObjectId>& of(const AcDbBlockTableRecord& block);

 private:
  std::unordered_map<AcDbObjectId, std::vector<AcDbObjectId>> m_sorted; // empty for a block without a table
};

} // namespace scene
