// A linetype as it is drawn: dashes, gaps and dots with all scales applied.
#pragma once

#include "host/scene/Path.h"

#include <vector>

namespace scene {

struct Pattern {
  std::vector<double> dashes; // lengths in the scene: above 0 a dash, below a gap, 0 a dot
  // Whether the pattern begins anew at each segment, as it does on polylines without linetype generation.
  bool bySegment = true;
  double length() const;
  bool operator==(const Pattern&) const = default;
};

// The dashes of a pattern along a path, each a part of its own; a dot is a line of length 0. Both ends of a
// stretch get a dash of at least half its length, and what is shorter than the pattern is drawn through.
// Nothing more than maxDashes is made: false when that, or the path itself, does not allow dashes, and the
// path is then to be drawn through.
bool AddDashes(PathView path, const Pattern& pattern, std::size_t maxDashes, Path& dashed);

} // namespace scene
