#include "plugin/graph/TableRecords.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"

namespace ZP {

Acad::ErrorStatus AddToTabRecAndClose(AcDbBlockTableRecord* record, AcDbEntity* entity) {
  if (!entity) return Acad::eInvalidInput;
  const auto status = record ? record->appendAcDbEntity(entity) : Acad::eInvalidInput;
  if (status == Acad::eOk)
    entity->close();
  else
    delete entity;
  return status;
}

} // namespace ZP
