// Placing entities of the drawing with the mouse.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/ge/AcGePoint3d.h"
#include "plugin/base/ZpExport.h"
#include "plugin/graph/AcArray.h"

namespace ZP {

// Lets the user move the entities to a place: they follow the cursor by their point `point`, in world
// coordinates, and stay where one is picked. Non-zero when all of them were moved. Escape and the end of the
// input give 0: with `generated` the entities were made for this drag and are erased, else they stay where
// they were. What can't be written to, as on a locked layer, stays where it was in any case.
ZP_EXPORT int DragGenEntity(const AcArray<AcDbObjectId>& ids, const AcGePoint3d& point, bool generated);

} // namespace ZP
