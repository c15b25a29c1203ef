#include "plugin/graph/LayerZero.h"

#include "host/db/AcDbLayerTable.h"

AcDbObjectId ZP::LayerZero(const AcDbDatabase& drawing) {
  AcDbObjectId id;
  const AcDbObjectPointer<AcDbLayerTable> layers(drawing.layerTableId(), AcDb::kForRead);
  if (layers) layers->getAt(L"0", id);
  return id;
}
