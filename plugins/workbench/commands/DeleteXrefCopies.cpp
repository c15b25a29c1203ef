// WB_SCFB: erases the copies that WB_FZCZ made, and shows the references again.
#include "host/ed/acutPrintf.h"
#include "plugin/tools/XrefClones.h"
#include "plugins/workbench/Commands.h"

namespace workbench {

void DeleteXrefCopies() {
  acutPrintf(ZP::DeleteCloneXrefBlock() ? L"\n参照副本已删除。\n"
                                        : L"\n部分参照副本已不在图形中，其余的已删除。\n");
}

} // namespace workbench
