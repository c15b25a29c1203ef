// SELECT: what is selected here is taken by the next command that works on a selection.
#include "host/commands/CommandFunctions.h"
#include "host/commands/ForEachSelected.h"
#include "host/ed/AcApDocManager.h"

namespace commands {

void Select() {
  curDoc()->edit().pickFirst = AskEntities();
}

} // namespace commands
