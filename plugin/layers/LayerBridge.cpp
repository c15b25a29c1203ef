// From an identifier to a layer of the drawing, and back.
#include <memory>

#include "plugin/graph/Xdata.h"
#include "plugin/layers/CZPLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/LayerMark.h"
#include "plugin/layers/LayerService.h"
#include "plugin/layers/LayerTable.h"

namespace {

// Null for a name that no layer can have: a half-made record must not get into the drawing.
layers::OpenRecord AddLayer(AcDbLayerTable& table, const CString& name) {
  auto record = std::make_unique<AcDbLayerTableRecord>();
  if (record->setName(name) != Acad::eOk || table.add(record.get()) != Acad::eOk) return {};
  return layers::OpenRecord(record.release());
}

} // namespace

CString ZP::GetUserLayer(const CString& korLayer) {
  const CZPLayer* definition = CZPManagerLayer::GetInstance()->GetLayer(korLayer);
  if (!definition) return korLayer;
  const CString name = definition->GetUserLayer();
  const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForWrite);
  if (!table) return name;
  // A layer that stands there is stamped too: what the user changed on it by hand is overwritten.
  if (table->has(name)) {
    const layers::OpenRecord record = layers::OpenLayer(*table.object(), name, AcDb::kForWrite);
    SetUserLayerTableRecord(record.object(), korLayer);
  } else {
    const layers::OpenRecord record = AddLayer(*table.object(), name);
    SetUserLayerTableRecord(record.object(), korLayer);
  }
  return name;
}

CString ZP::GetMngUserLayer(const CString& korLayer) {
  const CZPLayer* definition = CZPManagerLayer::GetInstance()->GetLayer(korLayer);
  return definition ? definition->GetUserLayer() : CString();
}

bool ZP::GetKOrLayer(const CString& layer, CString& korLayer) {
  const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForRead);
  if (!table) return false;
  const layers::OpenRecord record = layers::OpenLayer(*table.object(), layer, AcDb::kForRead);
  return record && GetXdata(record.object(), kLayerMarkKey, korLayer);
}

bool ZP::IsSameKOrLayer(const CString& layerA, const CString& layerB) {
  // Deliberately no comparison of the two: callers have always been told so, and count on it.
  CString a;
  CString b;
  return GetKOrLayer(layerA, a) && GetKOrLayer(layerB, b);
}
