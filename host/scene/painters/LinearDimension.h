// A dimension along a line that has no picture of its own, as some programs write it.
#pragma once

namespace scene {

class Pen;

// False for kinds other than aligned and rotated dimensions.
bool DrawLinearDimension(Pen& pen);

} // namespace scene
