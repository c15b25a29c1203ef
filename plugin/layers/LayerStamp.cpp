// Giving a layer of the drawing the look of its definition.
#include "host/db/AcDbTables.h"
#include "plugin/graph/HostLineWeight.h"
#include "plugin/graph/Xdata.h"
#include "plugin/layers/CZPLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/LayerMark.h"
#include "plugin/layers/LayerService.h"
#include "plugin/layers/LayerTable.h"

namespace {

// Layer 0 is the one that every drawing must have under that name.
bool IsLayerZero(const AcDbLayerTableRecord& record) {
  return record.name() == L"0";
}

AcDbObjectId FindLinetype(AcDbDatabase& drawing, const CString& name, AcDb::OpenMode mode) {
  AcDbObjectId id;
  AcDbLinetypeTable* table = nullptr;
  if (drawing.getSymbolTable(table, mode) != Acad::eOk) return id;
  const AcDbObjectPointer<AcDbLinetypeTable> closing(table);
  table->getAt(name, id);
  return id;
}

// A linetype that neither the drawing nor the file has leaves the layer with the one it has: the host refuses
// the null id.
void SetLinetype(AcDbLayerTableRecord& record, const CString& name) {
  AcDbDatabase* drawing = record.database();
  if (!drawing) return;
  AcDbObjectId linetype = FindLinetype(*drawing, name, AcDb::kForWrite);
  if (linetype.isNull()) {
    drawing->loadLineTypeFile(name, L"acad.lin");
    linetype = FindLinetype(*drawing, name, AcDb::kForRead);
  }
  record.setLinetypeObjectId(linetype);
}

} // namespace

bool ZP::SetUserLayerTableRecord(AcDbLayerTableRecord* record, const CString& korLayer) {
  if (!record) return false;
  const CZPLayer* definition = CZPManagerLayer::GetInstance()->GetLayer(korLayer);
  if (!definition) return false;
  SetXdata(record, kLayerMarkKey, definition->GetKorLayer());
  record->upgradeOpen();
  if (!IsLayerZero(*record)) record->setName(definition->GetUserLayer());
  AcCmColor color;
  color.setColorIndex(definition->GetColorIndex());
  record->setColor(color);
  SetLinetype(*record, definition->GetLineType());
  if (const auto weight = HostLineWeight(definition->GetLineWeight() * 100.0)) record->setLineWeight(*weight);
  return true;
}
