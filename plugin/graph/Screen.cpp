#include "plugin/graph/Screen.h"

#include "host/ed/acedWindows.h"

namespace ZP {

namespace {

enum RedrawMode { kShow = 1, kHide = 2 };

} // namespace

void FlushGraphics() {
  acedUpdateDisplay();
}

int EntityRedraw(const AcDbObjectId& id, int mode) {
  if (mode != kShow && mode != kHide) return 0;
  return acedSetEntityHidden(id, mode == kHide) ? 1 : 0;
}

} // namespace ZP
