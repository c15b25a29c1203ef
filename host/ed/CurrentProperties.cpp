#include "host/ed/CurrentProperties.h"

#include "host/db/AcDbEntity.h"

namespace ed {

Acad::ErrorStatus ApplyCurrentProperties(AcDbEntity& entity, const AcDbDatabase& database) {
  return entity.setDatabaseDefaults(&database);
}

} // namespace ed
