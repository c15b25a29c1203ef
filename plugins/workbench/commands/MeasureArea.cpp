// WB_CLMJ: the area inside a path that the user traces.
#include "host/ed/acutPrintf.h"
#include "plugin/tools/Measuring.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"

namespace workbench {

void MeasureArea() {
  const double squareMetres = ZP::GetAreaFromDwg();
  acutPrintf(L"\n面积 %s m2。\n", NumberText(squareMetres));
}

} // namespace workbench
