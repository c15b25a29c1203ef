#include "plugin/layers/ApplyScheme.h"

#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/graph/Xdata.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/LayerMark.h"
#include "plugin/layers/LayerService.h"
#include "plugin/layers/LayerTable.h"

void layers::ApplyScheme(CZPManagerLayer& scheme) {
  scheme.SaveData();
  const DocumentWriteLock lock;
  if (!lock.IsHeld()) return;
  const OpenTable table = OpenLayerTable(AcDb::kForWrite);
  if (!table) return;
  ForEachLayer(*table.object(), AcDb::kForWrite, [](AcDbLayerTableRecord& record) {
    CString korLayer;
    if (ZP::GetXdata(&record, kLayerMarkKey, korLayer)) ZP::SetUserLayerTableRecord(&record, korLayer);
  });
}
