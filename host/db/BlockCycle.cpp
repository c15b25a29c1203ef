#include "host/db/BlockCycle.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"

#include <unordered_set>
#include <vector>

bool blockContains(const AcDbObjectId& block, const AcDbObjectId& inner) {
  std::unordered_set<AcDbObjectId> seen;
  std::vector<AcDbObjectId> open{block};
  while (!open.empty()) {
    const AcDbObjectId current = open.back();
    open.pop_back();
    if (current == inner) return true;
    const auto* record = AcDbBlockTableRecord::cast(current.object());
    if (!record || !seen.insert(current).second) continue;
    for (const AcDbObjectId& id : record->entities())
      if (const auto* reference = AcDbBlockReference::cast(id.object()); reference && !reference->isErased())
        open.push_back(reference->blockTableRecord());
  }
  return false;
}
