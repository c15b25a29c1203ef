// WB_CLCD: the length of a path that the user traces, and where it begins and ends.
#include "host/ed/acutPrintf.h"
#include "plugin/tools/Measuring.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"

namespace workbench {
namespace {

CString PlaceText(const AcGePoint3d& point) {
  return NumberText(point.x) + L"," + NumberText(point.y);
}

} // namespace

void MeasureLength() {
  AcGePoint3d first;
  AcGePoint3d last;
  const double metres = ZP::GetLengthFromDwg(first, last);
  acutPrintf(L"\n长度 %s m，从 %s 到 %s。\n", NumberText(metres), PlaceText(first), PlaceText(last));
}

} // namespace workbench
