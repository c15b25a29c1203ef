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

std::vector<AcDbObjectId> EntitiesOf(const AcDbBlockTableRecord& record) {
  std::vector<AcDbObjectId> ids;
  AcDbObjectId id;
  for (AcDbBlockTableRecordIterator it(record); !it.done(); it.step())
    if (it.getEntityId(id) == Acad::eOk) ids.push_back(id);
  return ids;
}

} // namespace ZP
