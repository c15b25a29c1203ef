// Copying within a drawing and between drawings: deepCloneObjects, wblockCloneObjects, wblock, insert of
// AcDbDatabase.
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbDrawingFiles.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/CopyDatabase.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"
#include "host/db/FollowingEntity.h"
#include "host/db/ObjectCloner.h"

namespace {

Acad::ErrorStatus cloneAll(const std::vector<AcDbObjectId>& ids, AcDbDatabase& from, AcDbDatabase& to,
                           const AcDbObjectId& owner, AcDbIdMapping& map,
                           AcDb::DuplicateRecordCloning duplicates) {
  if (!AcDbBlockTableRecord::cast(owner.object()) || owner.isErased()) return Acad::eNotThatKindOfClass;
  if (owner.database() != &to) return Acad::eWrongDatabase;
  for (const AcDbObjectId& id : ids) {
    if (!id.isValid()) return Acad::eNullObjectId;
    if (id.database() != &from) return Acad::eWrongDatabase;
    if (id.isErased()) return Acad::eWasErased;
    if (!AcDbEntity::cast(id.object())) return Acad::eNotThatKindOfClass;
  }
  ObjectCloner cloner(from, to, map, duplicates);
  Acad::ErrorStatus status = Acad::eOk;
  for (const AcDbObjectId& id : ids)
    if (status == Acad::eOk) status = cloner.cloneEntity(id, owner);
  cloner.translate();
  return status;
}

AcDbDatabase* newDrawing() {
  auto* files = AcDbDrawingFiles::registered();
  auto drawing = std::make_unique<AcDbDatabase>(files == nullptr);
  if (files) files->buildNew(*drawing);
  return drawing.release();
}

// The settings that the size of what is drawn depends on.
void copySettings(const AcDbDatabase& from, AcDbDatabase& to) {
  AcDbObjectPointer<AcDbHeader> header(to.headerId(), AcDb::kForWrite);
  if (!header) return;
  for (const char* name : {"$INSUNITS", "$MEASUREMENT", "$LUNITS", "$LTSCALE"}) {
    std::string tags;
    for (const DxfTag& tag : from.header().variable(name)) tags += DxfRecordEditor::tag(tag.code, tag.value);
    if (!tags.empty()) header->setVariable(name, tags);
  }
}

AcGePoint3d basePointOf(const AcDbDatabase& database) {
  AcGePoint3d base;
  for (const DxfTag& tag : database.header().variable("$INSBASE")) {
    const double value = dxf::toReal(tag.value).value_or(0.0);
    (tag.code == 10 ? base.x : tag.code == 20 ? base.y : base.z) = value;
  }
  return base;
}

std::vector<AcDbObjectId> liveEntities(const AcDbBlockTableRecord& block) {
  std::vector<AcDbObjectId> ids;
  for (const AcDbObjectId& id : block.entities())
    if (!id.isErased()) ids.push_back(id);
  return ids;
}

const AcDbBlockTableRecord* modelSpaceOf(const AcDbDatabase& database) {
  return AcDbBlockTableRecord::cast(database.modelSpaceId().object());
}

// Moves what was copied. Each that can't be moved is put into an anonymous block, and an insertion of that
// is.
Acad::ErrorStatus transformAll(AcDbDatabase& database, const AcDbIdMapping& map, const AcGeMatrix3d& matrix) {
  if (matrix.isEqualTo(AcGeMatrix3d::kIdentity)) return Acad::eOk;
  for (const AcDbIdMapping::Pair& pair : map.pairs()) {
    if (!pair.isPrimary || !pair.isCloned) continue;
    const auto status = entity::transformOrWrap(database, pair.value, matrix);
    if (status != Acad::eOk) return status;
  }
  return Acad::eOk;
}

} // namespace

Acad::ErrorStatus AcDbDatabase::deepCloneObjects(const std::vector<AcDbObjectId>& ids,
                                                 const AcDbObjectId& owner, AcDbIdMapping& map) {
  return cloneAll(ids, *this, *this, owner, map, AcDb::kDrcIgnore);
}

Acad::ErrorStatus AcDbDatabase::wblockCloneObjects(const std::vector<AcDbObjectId>& ids,
                                                   const AcDbObjectId& owner, AcDbIdMapping& map,
                                                   AcDb::DuplicateRecordCloning duplicates) {
  if (!owner.isValid()) return Acad::eNullObjectId;
  return cloneAll(ids, *this, *owner.database(), owner, map, duplicates);
}

Acad::ErrorStatus AcDbDatabase::wblock(AcDbDatabase* output, const std::vector<AcDbObjectId>& ids,
                                       const AcGePoint3d& basePoint,
                                       AcDb::DuplicateRecordCloning duplicates) {
  if (!output) return Acad::eNoDatabase;
  if (output == this) return Acad::eWrongDatabase;
  if (!entity::isFinite(basePoint)) return Acad::eInvalidInput;
  AcDbIdMapping map;
  const auto status = wblockCloneObjects(ids, output->modelSpaceId(), map, duplicates);
  if (status != Acad::eOk) return status;
  return transformAll(*output, map, AcGeMatrix3d::translation(-basePoint.asVector()));
}

Acad::ErrorStatus AcDbDatabase::wblock(AcDbDatabase*& output, const std::vector<AcDbObjectId>& ids,
                                       const AcGePoint3d& basePoint) {
  output = nullptr;
  std::unique_ptr<AcDbDatabase> made(newDrawing());
  copySettings(*this, *made);
  const auto status = wblock(made.get(), ids, basePoint, AcDb::kDrcIgnore);
  if (status == Acad::eOk) output = made.release();
  return status;
}

Acad::ErrorStatus AcDbDatabase::wblock(AcDbDatabase*& output, const AcDbObjectId& block) {
  output = nullptr;
  const auto* record = AcDbBlockTableRecord::cast(block.object());
  if (!record) return block.isNull() ? Acad::eNullObjectId : Acad::eNotThatKindOfClass;
  if (block.database() != this) return Acad::eWrongDatabase;
  if (record->isErased()) return Acad::eWasErased;
  return wblock(output, liveEntities(*record), record->origin());
}

Acad::ErrorStatus AcDbDatabase::wblock(AcDbDatabase*& output) const {
  auto made = std::make_unique<AcDbDatabase>(false);
  copyDatabase(*this, *made);
  output = made.release();
  return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::insert(AcDbObjectId& block, const wchar_t* name, AcDbDatabase* source, bool) {
  if (!source) return Acad::eNoDatabase;
  if (source == this) return Acad::eWrongDatabase;
  const AcDbBlockTableRecord* space = modelSpaceOf(*source);
  if (!space) return Acad::eKeyNotFound;
  auto made = std::make_unique<AcDbBlockTableRecord>();
  if (const auto status = made->setName(name ? name : L""); status != Acad::eOk) return status;
  made->setOrigin(basePointOf(*source));
  AcDbObjectPointer<AcDbBlockTable> table(blockTableId(), AcDb::kForWrite);
  if (!table) return table.openStatus();
  AcDbObjectId added;
  if (const auto status = table->add(added, made.get()); status != Acad::eOk) return status;
  made.release()->close();
  table.close();
  AcDbIdMapping map;
  const auto status = source->wblockCloneObjects(liveEntities(*space), added, map, AcDb::kDrcIgnore);
  if (status == Acad::eOk)
    block = added;
  else
    AcDbObjectPointer<AcDbBlockTableRecord>(added, AcDb::kForWrite)->erase();
  return status;
}

Acad::ErrorStatus AcDbDatabase::insert(const AcGeMatrix3d& transform, AcDbDatabase* source, bool) {
  if (!source) return Acad::eNoDatabase;
  if (source == this) return Acad::eWrongDatabase;
  if (!entity::isFinite(transform)) return Acad::eInvalidInput;
  const AcDbBlockTableRecord* space = modelSpaceOf(*source);
  if (!space) return Acad::eKeyNotFound;
  AcDbIdMapping map;
  const auto status = source->wblockCloneObjects(liveEntities(*space), modelSpaceId(), map, AcDb::kDrcIgnore);
  return status == Acad::eOk ? transformAll(*this, map, transform) : status;
}
