#include "plugin/rooms/CTQFloorSub.h"

IMPLEMENT_DYNAMIC(CTQFloorSub, CTQMngObject)

CTQFloorSub::CTQFloorSub() = default;
CTQFloorSub::~CTQFloorSub() = default;
