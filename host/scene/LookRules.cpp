#include "host/scene/LookRules.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcDbSymbolTableRecord.h"
#include "host/db/AcGiSubEntityTraits.h"
#include "host/scene/Transparency.h"

#include <algorithm>

namespace scene {
namespace {

constexpr int kDefaultWeight = 25; // where the drawing says "default"

} // namespace

AcDbObjectId LookRules::layerOf(const Frame& frame, const AcDbObjectId& layer) const {
  return frame.inBlock && m_layers.of(layer).isZero ? frame.layer : layer;
}

bool LookRules::isHidden(const Frame& frame, const AcDbObjectId& layer, bool isInsertion) const {
  const LayerLook& look = m_layers.of(layer);
  if (look.frozen) return true;
  if (frame.frozen && (frame.frozen->contains(layer) || frame.frozen->contains(look.here))) return true;
  return look.off && !isInsertion; // what stands in a block on a layer of its own stays
}

Color LookRules::colorOf(const Frame& frame, int index, const LayerLook& layer) {
  const AcCmColor color(index);
  Color found = color.isByLayer()   ? layer.color
                : color.isByBlock() ? frame.byBlock.color
                                    : Color::fromIndex(index);
  const std::uint8_t inherited = color.isByBlock() ? frame.byBlock.color.alpha : 255;
  found.alpha = std::min(layer.color.alpha, inherited);
  return found;
}

AcDbObjectId LookRules::linetypeOf(const Frame& frame, const AcDbObjectId& linetype, const LayerLook& layer) {
  const auto* record = AcDbSymbolTableRecord::cast(linetype.object());
  if (!record || record->name().CompareNoCase(L"ByLayer") == 0) return layer.linetype;
  return record->name().CompareNoCase(L"ByBlock") == 0 ? frame.byBlock.linetype : linetype;
}

int LookRules::weightOf(const Frame& frame, int weight, const LayerLook& layer) {
  if (weight == AcDb::kLnWtByLayer) weight = layer.weight;
  if (weight == AcDb::kLnWtByBlock) weight = frame.byBlock.weight;
  return weight < 0 ? kDefaultWeight : weight;
}

Look LookRules::lookOf(const Frame& frame, const AcDbEntity& entity, const AcDbObjectId& layer) const {
  const LayerLook& layerLook = m_layers.of(layer);
  Look look;
  look.color = colorOf(frame, entity.colorIndex(), layerLook);
  if (entity.trueColor() >= 0) {
    look.color = Color::fromTrueColor(entity.trueColor());
    look.color.alpha = layerLook.color.alpha;
  }
  if (const auto alpha = EntityAlpha(entity.transparency())) look.color.alpha = *alpha;
  look.linetype = linetypeOf(frame, entity.linetypeId(), layerLook);
  look.linetypeScale = entity.linetypeScale() > 0 ? entity.linetypeScale() : 1;
  look.weight = weightOf(frame, entity.lineWeight(), layerLook);
  return look;
}

bool LookRules::apply(const Frame& frame, const AcGiSubEntityTraits& own, const AcGiSubEntityTraits& now,
                      Look& look) const {
  const bool moved = now.layer() != own.layer() && !now.layer().isNull();
  const AcDbObjectId layer = layerOf(frame, moved ? now.layer() : own.layer());
  if (moved && isHidden(frame, layer, false)) return false;
  const LayerLook& layerLook = m_layers.of(layer);
  if (moved || now.color() != own.color()) look.color = colorOf(frame, now.color(), layerLook);
  if (moved || now.lineType() != own.lineType()) look.linetype = linetypeOf(frame, now.lineType(), layerLook);
  if (moved || now.lineWeight() != own.lineWeight())
    look.weight = weightOf(frame, now.lineWeight(), layerLook);
  return true;
}

} // namespace scene
