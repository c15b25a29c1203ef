// The elevation of any entity relative to its floor, for those who have no wrapper at hand. The value is that
// of CZPMainPipe, written with two decimals instead of five: both precisions are meant.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// 0 for an entity without an elevation.
ZP_EXPORT double GetElevation(const AcDbObjectId& id);
// False when the entity can't be opened for write. The argument stays as it is.
ZP_EXPORT bool SetElevation(const AcDbObjectId& id, double& value);

// The same by an entity name of the host; 0 and false for one that is none.
ZP_EXPORT double GetElevation(long long* name);
ZP_EXPORT bool SetElevation(long long* name, double& value);

} // namespace ZP
