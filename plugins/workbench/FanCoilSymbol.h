// How a fan-coil unit is drawn in plan.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbEntity.h"

#include <memory>

struct SKTFCUEquipmentData;

namespace workbench {

// The block of the unit in the working drawing, brought there from its file on first use. Null where the unit
// names none and where the file can't be read.
AcDbObjectId FanCoilBlock(const SKTFCUEquipmentData& unit);
// An insertion of the block as it was drawn, or, where that is null, a rectangle of the unit's real length
// and width around the point. The angle is in radians.
std::unique_ptr<AcDbEntity> FanCoilSymbol(const SKTFCUEquipmentData& unit, const AcDbObjectId& block,
                                          const AcGePoint3d& at, double angle);

} // namespace workbench
