// The commands that bring every layer of the drawing back to one state.
#include "plugin/layers/LayerService.h"
#include "plugin/layers/LayerTable.h"
#include "plugin/layers/Regenerate.h"

namespace {

template <typename Change> bool ChangeAllLayers(Change change) {
  const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForWrite);
  if (!table) return false;
  layers::ForEachLayer(*table.object(), AcDb::kForWrite, change);
  return true;
}

} // namespace

void ZP::OpenAllLayers() {
  ChangeAllLayers([](AcDbLayerTableRecord& layer) { layer.setIsOff(false); });
}

void ZP::UnLockedAllLayers() {
  ChangeAllLayers([](AcDbLayerTableRecord& layer) { layer.setIsLocked(false); });
}

void ZP::UnFrozenAllLayers() {
  if (ChangeAllLayers([](AcDbLayerTableRecord& layer) { layer.setIsFrozen(false); })) layers::Regenerate();
}

// Despite its name it restores no remembered state: every layer is cleared.
void ZP::ResumeLayers() {
  const bool changed = ChangeAllLayers([](AcDbLayerTableRecord& layer) {
    layer.setIsOff(false);
    layer.setIsFrozen(false);
    layer.setIsLocked(false);
    layer.setVPDFLT(false);
  });
  if (changed) layers::Regenerate();
}
