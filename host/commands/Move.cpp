// MOVE: shifts entities.
#include "host/commands/CommandFunctions.h"
#include "host/commands/Displacement.h"
#include "host/commands/ForEachSelected.h"
#include "host/db/AcDbEntity.h"
#include "host/ed/acutPrintf.h"

namespace commands {

void Move() {
  const auto ids = AskEntities();
  if (ids.empty()) return;
  const auto displacement = AskDisplacement(ids);
  if (!displacement) return;
  const auto matrix = AcGeMatrix3d::translation(*displacement);
  const int moved =
      ForEachForWrite(ids, [&](AcDbEntity& entity) { return entity.transformBy(matrix) == Acad::eOk; });
  acutPrintf(L"\n移动了 %d 个。\n", moved);
}

} // namespace commands
