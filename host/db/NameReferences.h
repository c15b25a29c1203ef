// Which objects name a table record in their own records, as drawing files do it.
#pragma once

#include "host/db/AcDbObjectId.h"

// Whether the object's record holds the name of the table record: an entity the names of its layer, linetype,
// text style or block, a layer that of its linetype, the marks of a block its own. What the host keeps
// without understanding it is not looked into.
bool namesRecord(const AcDbObject& object, const AcDbObjectId& record);
