// REGEN: has the picture drawn anew.
#include "host/commands/CommandFunctions.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdSession.h"
#include "host/ed/acutPrintf.h"

namespace commands {

void Regen() {
  acutPrintf(L"\n正在重生成模型。\n");
  if (auto* frontEnd = EdSession::instance().frontEnd()) frontEnd->regenerate(*curDoc());
}

} // namespace commands
