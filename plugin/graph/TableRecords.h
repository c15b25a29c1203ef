// Filling blocks, and what is in them.
#pragma once

#include <vector>

#include "host/db/AcDbObjectId.h"
#include "host/db/AcadStatus.h"
#include "plugin/base/ZpExport.h"

class AcDbBlockTableRecord;
class AcDbEntity;

namespace ZP {

// Appends the entity to the record, which must be open for write, and closes it. The entity is freed when the
// record refuses it.
ZP_EXPORT Acad::ErrorStatus AddToTabRecAndClose(AcDbBlockTableRecord* record, AcDbEntity* entity);

// The entities of the record in their order, without erased ones.
std::vector<AcDbObjectId> EntitiesOf(const AcDbBlockTableRecord& record);

} // namespace ZP
