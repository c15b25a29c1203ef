#include "host/db/NameReferences.h"

#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbText.h"

bool namesRecord(const AcDbObject& object, const AcDbObjectId& record) {
  if (const auto* entity = AcDbEntity::cast(&object)) {
    if (entity->layerId() == record || entity->linetypeId() == record) return true;
    if (const auto* reference = AcDbBlockReference::cast(entity))
      return reference->blockTableRecord() == record;
    if (const auto* text = AcDbText::cast(entity)) return text->textStyle() == record;
    return AcDbBlockBegin::cast(entity) && entity->ownerId() == record;
  }
  const auto* layer = AcDbLayerTableRecord::cast(&object);
  return layer && layer->linetypeObjectId() == record;
}
