// The layer of a pipe's entity, by the identifiers of the layer scheme.
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/graph/EntityLayer.h"
#include "plugin/graph/HostLineWeight.h"
#include "plugin/layers/CZPLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/LayerService.h"
#include "plugin/pipes/attributes/CZPPipe.h"

namespace {

void Stamp(AcDbEntity& entity, const CString& drawingLayer, const CZPLayer& definition) {
  entity.setLayer(drawingLayer);
  entity.setColorIndex(AcCmColor::kByLayer);
  entity.setLinetype(L"BYLAYER");
  entity.setLinetypeScale(definition.GetLineTypeScale());
  // With the usual scale of 1:100 the product is the weight in hundredths of a millimetre; with any other one
  // it is deliberately the same product. What is no weight of the host leaves the one that is there.
  const auto weight = ZP::HostLineWeight(definition.GetLineWeight() * ZP::GetOutDwgScale());
  if (weight) entity.setLineWeight(*weight);
}

} // namespace

bool CZPPipe::SetLayerId(const CString& layerId) {
  const AcDbObjectPointer<AcDbEntity> entity(m_id, AcDb::kForWrite);
  if (!entity) return false;
  const CZPLayer* definition = CZPManagerLayer::GetInstance()->GetLayer(layerId);
  if (!definition) return false;
  const CString drawingLayer = ZP::GetUserLayer(layerId);
  Stamp(*entity.object(), drawingLayer, *definition);
  for (const AcDbObjectId& id : entity->subEntities()) {
    const AcDbObjectPointer<AcDbEntity> part(id, AcDb::kForWrite);
    if (part) Stamp(*part.object(), drawingLayer, *definition);
  }
  return true;
}

bool CZPPipe::GetLayerId(CString& layerId) const {
  CString layer;
  return ZP::GetEntityLayer(m_id, layer) && ZP::GetKOrLayer(layer, layerId);
}
