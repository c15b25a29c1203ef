#include "host/db/FollowingEntity.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/ObjectCloner.h"

AcDbObjectId entity::wrapInBlock(AcDbDatabase& database, const AcDbObjectId& source,
                                 const AcGePoint3d& origin) {
  auto block = std::make_unique<AcDbBlockTableRecord>();
  block->setName(L"*E");
  block->setOrigin(origin);
  AcDbObjectPointer<AcDbBlockTable> table(database.blockTableId(), AcDb::kForWrite);
  AcDbObjectId id;
  if (!table || table->add(id, block.get()) != Acad::eOk) return {};
  block.release()->close();
  table.close();
  AcDbIdMapping map;
  ObjectCloner cloner(*source.database(), database, map, AcDb::kDrcIgnore);
  if (cloner.cloneEntity(source, id) != Acad::eOk) return {};
  cloner.translate();
  return id;
}

Acad::ErrorStatus entity::transformOrWrap(AcDbDatabase& database, const AcDbObjectId& id,
                                          const AcGeMatrix3d& matrix) {
  AcDbEntity* opened = nullptr;
  const auto openStatus = acdbOpenObject(opened, id, AcDb::kForWrite);
  if (openStatus == Acad::eOnLockedLayer) {
    // What was copied just now is moved wherever it stands.
    opened = static_cast<AcDbEntity*>(id.object());
    opened->openAsNew();
  } else if (openStatus != Acad::eOk) {
    return openStatus;
  }
  AcDbObjectPointer<AcDbEntity> entity(opened);
  const auto status = entity->transformBy(matrix);
  if (status != Acad::eNotApplicable && status != Acad::eCannotScaleNonUniformly) return status;
  auto reference = std::make_unique<AcDbBlockReference>();
  if (const auto placed = reference->setBlockTransform(matrix); placed != Acad::eOk) return placed;
  const AcDbObjectId owner = entity->ownerId();
  const AcDbObjectId layer = entity->layerId();
  entity.close();
  const AcDbObjectId block = wrapInBlock(database, id, AcGePoint3d());
  if (block.isNull()) return Acad::eCannotScaleNonUniformly;
  reference->setBlockTableRecord(block);
  reference->setLayer(layer);
  database.eraseWhole(*id.object());
  AcDbObjectPointer<AcDbBlockTableRecord> space(owner, AcDb::kForWrite);
  if (!space) return space.openStatus();
  const auto appended = space->appendAcDbEntity(reference.get());
  if (appended == Acad::eOk) reference.release()->close();
  return appended;
}
