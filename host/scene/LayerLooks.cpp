#include "host/scene/LayerLooks.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbLinetypeTable.h"
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
  if (layer.handle().isNull()) return look; // of a drawing that is being read, which lacks it
  const auto tags = layer.record().tags();
  for (const DxfTag& tag : dxfOwnTags(tags))
    if (tag.code == 420) look.color = Color::fromTrueColor(dxf::toInteger(tag.value).value_or(0));
  if (const auto alpha = LayerAlpha(tags)) look.color.alpha = *alpha;
  return look;
}

// A linetype that came along with an external reference may be a name alone here.
bool isDefined(const AcDbObjectId& linetype) {
  const auto* record = AcDbLinetypeTableRecord::cast(linetype.object());
  return record && (!record->dashes().empty() || record->name().Find(L'|') < 0);
}

} // namespace

LayerLooks::LayerLooks(const AcDbDatabase& database, bool forPlotting)
    : m_database(database), m_forPlotting(forPlotting) {
  const AcDbSymbolTable* table = database.tableOf("LAYER");
  if (!table) return;
  for (const AcDbObjectId& id : table->records()) {
    const auto* layer = AcDbLayerTableRecord::cast(id.object());
    if (layer) m_looks.emplace(id, lookOf(*layer, forPlotting));
  }
}

void LayerLooks::addReferenced(const AcDbDatabase& referenced, const CString& block) {
  const AcDbSymbolTable* theirs = referenced.tableOf("LAYER");
  const AcDbSymbolTable* ours = m_database.tableOf("LAYER");
  const bool keepsChanges = m_database.header().integer("$VISRETAIN").value_or(1) != 0;
  if (!theirs) return;
  for (const AcDbObjectId& id : theirs->records()) {
    const auto* layer = AcDbLayerTableRecord::cast(id.object());
    if (!layer) continue;
    LayerLook look = lookOf(*layer, m_forPlotting);
    if (ours && ours->getAt(block + L"|" + layer->name(), look.here) == Acad::eOk && keepsChanges) {
      const LayerLook& changed = of(look.here);
      look.color = changed.color;
      look.weight = changed.weight;
      look.off = changed.off;
      look.frozen = changed.frozen;
      if (isDefined(changed.linetype)) look.linetype = changed.linetype;
    }
    m_looks.insert_or_assign(id, look);
  }
}

const LayerLook& LayerLooks::of(const AcDbObjectId& layer) const {
  const auto found = m_looks.find(layer);
  return found == m_looks.end() ? m_none : found->second;
}

} // namespace scene
