#include "plugin/layers/LayerTable.h"

layers::OpenTable layers::OpenLayerTable(AcDb::OpenMode mode) {
  AcDbDatabase* drawing = acdbHostApplicationServices()->workingDatabase();
  AcDbLayerTable* table = nullptr;
  if (!drawing || drawing->getSymbolTable(table, mode) != Acad::eOk) return {};
  return OpenTable(table);
}

layers::OpenRecord layers::OpenLayer(const AcDbLayerTable& table, const CString& name, AcDb::OpenMode mode) {
  AcDbLayerTableRecord* record = nullptr;
  if (table.getAt(name, record, mode) != Acad::eOk) return {};
  return OpenRecord(record);
}
