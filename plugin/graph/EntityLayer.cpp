#include "plugin/graph/EntityLayer.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"

bool ZP::GetEntityLayer(const AcDbObjectId& id, CString& layer) {
  const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
  if (!entity) return false;
  layer = entity->layer();
  return true;
}
