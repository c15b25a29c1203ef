#include "host/scene/ReferredDrawings.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"

#include <algorithm>

namespace scene {

bool RefersToOthers(const AcDbDatabase& database) {
  const auto* blocks = AcDbBlockTable::cast(database.blockTableId().object());
  return blocks &&
         std::any_of(blocks->records().begin(), blocks->records().end(), [](const AcDbObjectId& id) {
           const auto* block = AcDbBlockTableRecord::cast(id.object());
           return block && block->isFromExternalReference();
         });
}

} // namespace scene
