#include "plugin/layers/bar/LayerState.h"

#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/layers/LayerTable.h"

LayerState layers::ReadLayerState(const CString& name) {
  LayerState state;
  const DocumentWriteLock lock;
  if (!lock.IsHeld()) return state;
  const OpenTable table = OpenLayerTable(AcDb::kForRead);
  if (!table) return state;
  const OpenRecord layer = OpenLayer(*table.object(), name, AcDb::kForRead);
  if (!layer) return state;
  state.Off = layer->isOff();
  state.Frozen = layer->isFrozen();
  state.Locked = layer->isLocked();
  state.ColorIndex = layer->color().colorIndex();
  state.Name = name;
  return state;
}

void layers::WriteLayerState(const LayerState& state) {
  const DocumentWriteLock lock(L"图层开关、冻结或锁定");
  if (!lock.IsHeld()) return;
  const OpenTable table = OpenLayerTable(AcDb::kForWrite);
  if (!table) return;
  const OpenRecord layer = OpenLayer(*table.object(), state.Name, AcDb::kForWrite);
  if (!layer) return;
  layer->setIsOff(state.Off != 0);
  layer->setIsFrozen(state.Frozen != 0);
  layer->setIsLocked(state.Locked != 0);
}
