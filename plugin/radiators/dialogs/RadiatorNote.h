// A result of the radiator calculation as a text in the drawing.
#pragma once

#include "host/afx/CString.h"

namespace radiators {

// Writes the text on the package's layer of annotations, in its text style and its height of Chinese text,
// and lets the user place it in the current space. Escape takes it away again. A layer that is locked, frozen
// or off is told of and freed for as long as the text is placed.
void PlaceNote(const CString& text);

} // namespace radiators
