// AcDbObject::clone: a copy through the record.
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbText.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/RecordHead.h"

namespace {

// Where the names in an object's record are to be looked up: its drawing, or for an object outside of any the
// one that it refers to.
AcDbDatabase* databaseOfNames(const AcDbObject& object) {
  if (object.database()) return object.database();
  if (const auto* reference = AcDbBlockReference::cast(&object); reference && reference->blockTableRecord())
    return reference->blockTableRecord().database();
  if (const auto* text = AcDbText::cast(&object); text && text->textStyle())
    return text->textStyle().database();
  if (const auto* entity = AcDbEntity::cast(&object)) {
    if (entity->layerId()) return entity->layerId().database();
    if (entity->linetypeId()) return entity->linetypeId().database();
  }
  return acdbHostApplicationServices()->workingDatabase();
}

} // namespace

AcRxObject* AcDbObject::clone() const {
  std::unique_ptr<AcRxObject> made(isA()->create());
  auto* object = AcDbObject::cast(made.get());
  if (!object) return nullptr;
  made.release();
  return cloneInto(std::unique_ptr<AcDbObject>(object));
}

AcDbObject* AcDbObject::cloneInto(std::unique_ptr<AcDbObject> made) const {
  const DxfRecord copy = dxf::withoutHead(record());
  if (AcDbDatabase* names = databaseOfNames(*this)) {
    made->setRecord(copy, DxfDecodeContext(*names));
  } else {
    // Without any drawing there are no names but those of the standard entries. Kept for ever, for ids may
    // point into it.
    static AcDbDatabase* const standard = new AcDbDatabase;
    made->setRecord(copy, DxfDecodeContext(*standard));
  }
  made->invalidateRecord();
  return made.release();
}
