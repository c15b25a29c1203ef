// What the layer control bar shows and changes of one layer of the current document. It acts outside of any
// command, so reading and writing take the document's write lock themselves.
#pragma once

#include "host/afx/CString.h"

struct LayerState {
  CString Name;
  int Off = 0;
  int Frozen = 0;
  int Locked = 0;
  int ColorIndex = 255; // of the host
};

namespace layers {

// The defaults, without a name, where the document can't be locked or has no such layer.
LayerState ReadLayerState(const CString& name);
// Sets all three switches, changed or not. Nothing where the layer can't be written.
void WriteLayerState(const LayerState& state);

} // namespace layers
