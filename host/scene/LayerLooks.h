// How each layer looks, read once: those of the drawing, and those of the drawings that it refers to.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/scene/Color.h"

#include <unordered_map>

class AcDbDatabase;
class CString;

namespace scene {

struct LayerLook {
  Color color;
  AcDbObjectId linetype;
  int weight = -3; // as in AcDb::LineWeight
  bool off = false;
  bool frozen = false;
  bool isZero = false; // layer 0, whose entities in blocks take the insertion's layer
  AcDbObjectId here;   // of a layer in a drawing that is referred to: the record that stands for it here
};

class LayerLooks {
 public:
  // forPlotting hides the layers that are not plotted.
  LayerLooks(const AcDbDatabase& database, bool forPlotting);
  // The layers of an external reference: as its drawing has them, unless this one keeps changes of its own
  // in a layer named "BLOCK|LAYER".
  void addReferenced(const AcDbDatabase& referenced, const CString& block);
  bool knows(const AcDbObjectId& layer) const { return m_looks.contains(layer); }
  // A look of its own for a layer that the drawing doesn't have.
  const LayerLook& of(const AcDbObjectId& layer) const;

 private:
  const AcDbDatabase& m_database;
  bool m_forPlotting;
  std::unordered_map<AcDbObjectId, LayerLook> m_looks;
  LayerLook m_none;
};

} // namespace scene
