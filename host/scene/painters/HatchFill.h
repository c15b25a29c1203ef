// Fills loops with families of parallel lines.
#pragma once

#include "host/scene/painters/HatchBoundary.h"

namespace scene {

// The lines within the loops (by even and odd), as parts of one path; dots are lines of length 0. Nothing
// when there would be more than most.
std::optional<Path> FillWithLines(const std::vector<Path>& loops, const std::vector<HatchLines>& families,
                                  std::size_t most);

} // namespace scene
