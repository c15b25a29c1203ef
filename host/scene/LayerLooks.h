// How each layer looks, read once.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/scene/Color.h"

#include <unordered_map>

class AcDbDatabase;

namespace scene {

struct LayerLook {
  Color color;
  AcDbObjectId linetype;
  int weight = -3; // as in AcDb::LineWeight
  bool off = false;
  bool frozen = false;
  bool isZero = false; // layer 0, whose entities in blocks take the insertion's layer
};

class LayerLooks {
 public:
  // forPlotting hides the layers that are not plotted.
  LayerLooks(const AcDbDatabase& database, bool forPlotting);
  // A look of its own for a layer that the drawing doesn't have.
  const LayerLook& of(const AcDbObjectId& layer) const;

 private:
  std::unordered_map<AcDbObjectId, LayerLook> m_looks;
  LayerLook m_none;
};

} // namespace scene
