#include "plugin/rooms/CTQMngObject.h"

IMPLEMENT_DYNAMIC(CTQMngObject, CTQCalObject)

CTQMngObject::CTQMngObject() = default;
CTQMngObject::~CTQMngObject() = default;
