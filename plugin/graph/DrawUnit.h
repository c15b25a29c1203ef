// The unit of a drawing's coordinates, as far as areas depend on it.
#pragma once

#include "plugin/base/ZpExport.h"

class AcDbDatabase;

// 1 for a drawing whose header says that its unit is the metre ($INSUNITS 6), 0 for every other one, which
// the package takes to be in millimetres. null is the working drawing; 0 without one.
ZP_EXPORT int VkDbGetDrawUnit(const AcDbDatabase* database);
