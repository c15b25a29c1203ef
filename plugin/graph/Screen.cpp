#include "plugin/graph/Screen.h"

#include "host/ed/acedWindows.h"

namespace ZP {

void FlushGraphics() {
  acedUpdateDisplay();
}

int EntityRedraw(const AcDbObjectId& id, int mode) {
  if (mode != kShowEntity && mode != kHideEntity) return 0;
  return acedSetEntityHidden(id, mode == kHideEntity) ? 1 : 0;
}

} // namespace ZP
