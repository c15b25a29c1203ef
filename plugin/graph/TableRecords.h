// Filling blocks.
#pragma once

#include "host/db/AcadStatus.h"
#include "plugin/base/ZpExport.h"

class AcDbBlockTableRecord;
class AcDbEntity;

namespace ZP {

// Appends the entity to the record, which must be open for write, and closes it. The entity is freed when the
// record refuses it.
ZP_EXPORT Acad::ErrorStatus AddToTabRecAndClose(AcDbBlockTableRecord* record, AcDbEntity* entity);

} // namespace ZP
