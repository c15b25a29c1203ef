// Drawing the current document's picture anew.
#pragma once

namespace layers {

// Once the running command has returned.
void Regenerate();

} // namespace layers
