// The tree of all layers of a drawing with a tick for each: one item at the top, the layers below it.
#pragma once

#include "host/afx/CStringArray.h"
#include "host/ui/CMutiTreeCtrl.h"

namespace layers {

// All layers of the current drawing in table order, without ticks. Empty where they can't be read.
void FillLayerTree(CMutiTreeCtrl& tree);
// Ticks the layers of these names, letter case included, and no others.
void TickLayers(CMutiTreeCtrl& tree, const CStringArray& names);
// Ticks the top where every layer below it is ticked.
void TickTop(CMutiTreeCtrl& tree);
// The names of the ticked layers in the order of the tree.
CStringArray TickedLayers(const CMutiTreeCtrl& tree);

} // namespace layers
