// Whether blocks contain one another: a block that contains itself would be drawn without end.
#pragma once

#include "host/db/AcDbObjectId.h"

// Whether block is inner or inserts it, directly or through other blocks. Runs that are cyclic already end.
bool blockContains(const AcDbObjectId& block, const AcDbObjectId& inner);
