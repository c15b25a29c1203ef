// Clearing what keeps entities of a layer from being edited, and bringing it back. The lists belong to the
// process and not to a document: a restore in another drawing goes by the names there.
#include "host/ed/acutPrintf.h"
#include "plugin/layers/LayerService.h"
#include "plugin/layers/LayerTable.h"

namespace {

CStringArray SavedLockedLayers;
CStringArray SavedFrozenLayers;
CStringArray SavedOffLayers;

// A state that keeps a layer from being edited. The texts differ in colon and quotes; that is how users know
// them.
struct Hindrance {
  bool (AcDbLayerTableRecord::*is)() const;
  Acad::ErrorStatus (AcDbLayerTableRecord::*set)(bool);
  const wchar_t* warning;
  CStringArray& saved;
};

// In the order in which they are tested, and in which they are brought back.
const Hindrance kHindrances[] = {
    {&AcDbLayerTableRecord::isLocked, &AcDbLayerTableRecord::setIsLocked, L"\nwarning:图层\"%s\"被锁定!",
     SavedLockedLayers},
    {&AcDbLayerTableRecord::isFrozen, &AcDbLayerTableRecord::setIsFrozen, L"\nwarning:图层:%s被冻结!",
     SavedFrozenLayers},
    {&AcDbLayerTableRecord::isOff, &AcDbLayerTableRecord::setIsOff, L"\nwarning:图层:%s被关闭!",
     SavedOffLayers},
};

} // namespace

bool ZP::CheckLayerCanEdit(const CStringArray& names, bool warn) {
  const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForRead);
  if (!table) return false;
  for (const CString& name : names) {
    const layers::OpenRecord layer = layers::OpenLayer(*table.object(), name, AcDb::kForWrite);
    if (!layer) continue;
    for (const Hindrance& hindrance : kHindrances) {
      if (!(layer.object()->*hindrance.is)()) continue;
      if (warn) acutPrintf(hindrance.warning, name);
      hindrance.saved.Add(name);
      (layer.object()->*hindrance.set)(false);
    }
  }
  return true;
}

bool ZP::CheckLayerCanEdit(const CString& layer, bool warn) {
  CStringArray layers;
  layers.Add(layer);
  return CheckLayerCanEdit(layers, warn);
}

bool ZP::RestoreLayersStatus() {
  const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForRead);
  if (!table) return false;
  for (const Hindrance& hindrance : kHindrances) {
    for (const CString& name : hindrance.saved) {
      const layers::OpenRecord layer = layers::OpenLayer(*table.object(), name, AcDb::kForWrite);
      if (layer) (layer.object()->*hindrance.set)(true);
    }
    hindrance.saved.RemoveAll();
  }
  return true;
}
