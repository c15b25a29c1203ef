#include "host/db/AcDbCurves.h"
#include "host/db/AcDbObjectPointer.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/layers/CZPLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/LayerService.h"

int ZP::SetPolyLineWidth(AcDbPolyline* polyline, bool useOutScale) {
  CString korLayer;
  if (!polyline || !GetKOrLayer(polyline->layer(), korLayer)) return 0;
  const CZPLayer* definition = CZPManagerLayer::GetInstance()->GetLayer(korLayer);
  if (!definition) return 0;
  const double factor = useOutScale ? GetOutDwgScale() : 1.0;
  // A negative weight is a special value and no width, yet it is handed on as it is.
  polyline->setConstantWidth(factor * definition->GetLineWeight());
  return 1;
}

int ZP::SetPolyLineWidth(AcDbObjectId id, bool useOutScale) {
  const AcDbObjectPointer<AcDbPolyline> polyline(id, AcDb::kForWrite);
  return polyline ? SetPolyLineWidth(polyline.object(), useOutScale) : 0;
}

int ZP::SetPolyLineWidth(const AcArray<AcDbObjectId>& ids, bool useOutScale) {
  int all = 1;
  for (int i = 0; i < ids.length(); ++i)
    if (!SetPolyLineWidth(ids[i], useOutScale)) all = 0;
  return all;
}
