#include "host/ed/ArxDbgUtils.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/EntitySearch.h"
#include "host/ed/acedPrompts.h"

Acad::ErrorStatus ArxDbgUtils::addToCurrentSpace(AcDbEntity* entity) {
  const auto* database = acdbHostApplicationServices()->workingDatabase();
  if (!database) return Acad::eNoDatabase;
  if (!entity) return Acad::eNullObjectPointer;
  AcDbObjectPointer<AcDbBlockTableRecord> space(ed::CurrentSpace(*database), AcDb::kForWrite);
  return space ? space->appendAcDbEntity(entity) : space.openStatus();
}

Acad::ErrorStatus ArxDbgUtils::addToCurrentSpaceAndClose(AcDbEntity* entity) {
  const auto status = addToCurrentSpace(entity);
  if (status == Acad::eOk)
    entity->close();
  else
    delete entity;
  return status;
}

void ArxDbgUtils::rxErrorMsg(Acad::ErrorStatus status) {
  acedAlert(acadErrorStatusText(status));
}
