// The six commands that switch off, freeze or lock layers by entities that the user selects. What the host
// does with the current layer stands; none of them regenerates.
#include <unordered_set>

#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/layers/LayerService.h"
#include "plugin/layers/LayerTable.h"

namespace {

using Setter = Acad::ErrorStatus (AcDbLayerTableRecord::*)(bool);

void ChangeSelectedLayers(Setter setter) {
  CStringArray names;
  if (!ZP::GetSelectedEntityLayer(names)) return;
  const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForWrite);
  if (!table) return;
  for (const CString& name : names) {
    const layers::OpenRecord layer = layers::OpenLayer(*table.object(), name, AcDb::kForWrite);
    if (layer) (layer.object()->*setter)(true);
  }
}

void ChangeOtherLayers(Setter setter) {
  CStringArray names;
  if (!ZP::GetSelectedEntityLayer(names)) return;
  const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForWrite);
  if (!table) return;
  // Asked for once per layer of the drawing, while names has one element per selected entity.
  const std::unordered_set<CString> kept(names.begin(), names.end());
  layers::ForEachLayer(*table.object(), AcDb::kForWrite, [&](AcDbLayerTableRecord& layer) {
    if (!kept.contains(layer.name())) (layer.*setter)(true);
  });
}

} // namespace

void ZP::CloseSelectedLayer() {
  ChangeSelectedLayers(&AcDbLayerTableRecord::setIsOff);
}

void ZP::CloseOtherLayers() {
  ChangeOtherLayers(&AcDbLayerTableRecord::setIsOff);
}

// The only one with a lock of its own, and one that it does not insist on: without it the work is done all
// the same.
void ZP::FrozenSelectedLayer() {
  const DocumentWriteLock lock;
  ChangeSelectedLayers(&AcDbLayerTableRecord::setIsFrozen);
}

void ZP::FrozenOtherLayers() {
  ChangeOtherLayers(&AcDbLayerTableRecord::setIsFrozen);
}

void ZP::LockedSelectedLayer() {
  ChangeSelectedLayers(&AcDbLayerTableRecord::setIsLocked);
}

void ZP::LockedOtherLayers() {
  ChangeOtherLayers(&AcDbLayerTableRecord::setIsLocked);
}
