// What an entity looks like where it is drawn: its own properties, those of its layer, and what insertions
// hand down, brought together.
#pragma once

#include "host/scene/LayerLooks.h"
#include "host/scene/Look.h"

class AcDbEntity;
class AcGiSubEntityTraits;

namespace scene {

class LookRules {
 public:
  explicit LookRules(const LayerLooks& layers) : m_layers(layers) {}

  // The layer that counts for what stands on this one: layer 0 in a block is that of the insertion.
  AcDbObjectId layerOf(const Frame& frame, const AcDbObjectId& layer) const;
  bool isHidden(const Frame& frame, const AcDbObjectId& layer, bool isInsertion) const;
  Look lookOf(const Frame& frame, const AcDbEntity& entity, const AcDbObjectId& layer) const;
  // Takes what an entity that draws itself has set since into its look; own is what the traits began with.
  // False when it has gone to a layer that is not shown.
  bool apply(const Frame& frame, const AcGiSubEntityTraits& own, const AcGiSubEntityTraits& now,
             Look& look) const;

 private:
  static Color colorOf(const Frame& frame, int index, const LayerLook& layer);
  static AcDbObjectId linetypeOf(const Frame& frame, const AcDbObjectId& linetype, const LayerLook& layer);
  static int weightOf(const Frame& frame, int weight, const LayerLook& layer);

  const LayerLooks& m_layers;
};

} // namespace scene
