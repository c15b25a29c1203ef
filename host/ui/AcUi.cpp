#include "host/ui/AcUi.h"

void InitAcUiDLL() {}
