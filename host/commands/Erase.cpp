// ERASE: takes entities out of the drawing.
#include "host/commands/CommandFunctions.h"
#include "host/commands/ForEachSelected.h"
#include "host/db/AcDbEntity.h"
#include "host/ed/acutPrintf.h"

namespace commands {

void Erase() {
  const auto ids = AskEntities();
  if (ids.empty()) return;
  const int erased = ForEachForWrite(ids, [](AcDbEntity& entity) { return entity.erase() == Acad::eOk; });
  acutPrintf(L"\n删除了 %d 个。\n", erased);
}

} // namespace commands
