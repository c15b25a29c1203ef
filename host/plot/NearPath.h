// Keeps painters from coordinates far off the page, which their fixed-point numbers can't hold.
#pragma once

#include "host/scene/Path.h"

namespace plot {

// The same lines as far as they lie in the box, curves as chords.
scene::Path CutStrokes(scene::PathView path, const ge::Box2d& box);
// The same area within the box.
scene::Path CutFill(scene::PathView path, const ge::Box2d& box);

} // namespace plot
