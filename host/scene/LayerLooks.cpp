#include "host/scene/LayerLooks.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/scene/Transparency.h"

namespace scene {
namespace {

LayerLook lookOf(const AcDbLayerTableRecord& layer, bool forPlotting) {
  LayerLook look;
  look.color = Color::fromIndex(layer.color().colorIndex());
  look.linetype = layer.linetypeObjectId();
  look.weight = layer.lineWeight();
  const bool neverPlotted = !layer.isPlottable() || layer.name().CompareNoCase(L"Defpoints") == 0;
  look.off = layer.isOff() || (forPlotting && neverPlotted);
  look.frozen = layer.isFrozen();
  look.isZero = layer.name() == L"0";
  const auto tags = layer.record().tags();
  for (const DxfTag& tag : dxfOwnTags(tags))
    if (tag.code == 420) look.color = Color::fromTrueColor(dxf::toInteger(tag.value).value_or(0));
  if (const auto alpha = LayerAlpha(tags)) look.color.alpha = *alpha;
  return look;
}

} // namespace

LayerLooks::LayerLooks(const AcDbDatabase& database, bool forPlotting) {
  const AcDbSymbolTable* table = database.tableOf("LAYER");
  if (!table) return;
  for (const AcDbObjectId& id : table->records()) {
    const auto* layer = AcDbLayerTableRecord::cast(id.object());
    if (layer) m_looks.emplace(id, lookOf(*layer, forPlotting));
  }
}

const LayerLook& LayerLooks::of(const AcDbObjectId& layer) const {
  const auto found = m_looks.find(layer);
  return found == m_looks.end() ? m_none : found->second;
}

} // namespace scene
