// LIST: the properties of entities.
#include "host/commands/CommandFunctions.h"
#include "host/commands/EntityText.h"
#include "host/commands/ForEachSelected.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/acutPrintf.h"

namespace commands {

void List() {
  for (const auto& id : AskEntities()) {
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
    if (entity) acutPrintText(L"\n" + EntityText(*entity.object()));
  }
}

} // namespace commands
