#include "plugin/layers/Regenerate.h"

#include "host/ed/AcApDocManager.h"

void layers::Regenerate() {
  acDocManagerPtr()->sendStringToExecute(acDocManagerPtr()->curDocument(), L"regen\n", false, false, true);
}
