// The 255 indexed colours of drawings.
#pragma once

#include "host/scene/Color.h"

namespace scene {

// The colour of an index of 1 to 255, as it is defined; 7 is white here. Outside of that black.
Rgb PaletteColor(int index);

} // namespace scene
