// The current layer, and the names of all layers.
#include "host/ed/acedVariables.h"
#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/layers/LayerService.h"
#include "plugin/layers/LayerTable.h"

CString ZP::GetCurrentLayer() {
  resbuf variable{};
  if (acedGetVar(L"CLAYER", &variable) != RTNORM) return {};
  if (variable.restype != RTSTR) return {};
  const CString layer = variable.resval.rstring;
  acutDelString(variable.resval.rstring);
  return layer;
}

void ZP::SetCurrentLayer(const CString& layer) {
  const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForWrite);
  if (!table) return;
  AcDbObjectId id;
  {
    const layers::OpenRecord record = layers::OpenLayer(*table.object(), layer, AcDb::kForWrite);
    if (!record) return;
    id = record->objectId();
  }
  acdbHostApplicationServices()->workingDatabase()->setClayer(id);
}

void ZP::SetCurrentLayer() {
  CString layer;
  if (GetSelectedEntityLayer(layer)) SetCurrentLayer(layer);
}

bool ZP::GetCurDwgAllLayer(CStringArray& names) {
  const DocumentWriteLock lock;
  if (!lock.IsHeld()) return false;
  names.RemoveAll();
  const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForRead);
  if (!table) return false;
  layers::ForEachLayer(*table.object(), AcDb::kForRead,
                       [&](const AcDbLayerTableRecord& layer) { names.Add(layer.name()); });
  return !names.IsEmpty();
}
