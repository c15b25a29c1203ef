// WB_FZCZ: copies what the external references show into the drawing, and hides the references.
#include "host/ed/acutPrintf.h"
#include "plugin/tools/XrefClones.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"

namespace workbench {

void CopyXrefs() {
  if (!ZP::CloneXrefBlock()) return Refuse(L"图形中没有块参照。", L"先附着外部参照");
  acutPrintf(L"\n外部参照已复制为普通实体。\n");
}

} // namespace workbench
