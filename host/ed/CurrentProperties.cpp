#include "host/ed/CurrentProperties.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbTables.h"

namespace ed {

Acad::ErrorStatus ApplyCurrentProperties(AcDbEntity& entity, const AcDbDatabase& database) {
  const auto& header = database.header();
  auto first = entity.setLayer(database.clayer());
  const auto also = [&](Acad::ErrorStatus status) {
    if (first == Acad::eOk) first = status;
  };
  if (const auto color = header.integer("$CECOLOR")) also(entity.setColorIndex(static_cast<int>(*color)));
  if (const auto linetype = header.text("$CELTYPE")) {
    AcDbObjectPointer<AcDbLinetypeTable> table(database.linetypeTableId(), AcDb::kForRead);
    AcDbObjectId id;
    if (table && table->getAt(*linetype, id) == Acad::eOk) also(entity.setLinetype(id));
  }
  if (const auto scale = header.real("$CELTSCALE")) also(entity.setLinetypeScale(*scale));
  if (const auto weight = header.integer("$CELWEIGHT"))
    also(entity.setLineWeight(static_cast<AcDb::LineWeight>(*weight)));
  return first;
}

} // namespace ed
