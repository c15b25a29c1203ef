#include "plugin/rooms/CTQCalObject.h"

IMPLEMENT_DYNAMIC(CTQCalObject, CTQObject)

CTQCalObject::CTQCalObject() = default;
CTQCalObject::~CTQCalObject() = default;
