// Bringing the layers of the current drawing up to their definitions.
#pragma once

class CZPManagerLayer;

namespace layers {

// Saves the scheme, and gives each layer of the drawing that is marked with an identifier the name and the
// look of its definition. Layers without a mark are left alone and none is made. Where the drawing can't be
// locked it stays as it was.
void ApplyScheme(CZPManagerLayer& scheme);

} // namespace layers
