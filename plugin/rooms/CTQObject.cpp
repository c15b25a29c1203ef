#include "plugin/rooms/CTQObject.h"

IMPLEMENT_DYNAMIC(CTQObject, CObject)

CTQObject::CTQObject() = default;
CTQObject::~CTQObject() = default;
