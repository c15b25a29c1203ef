// The boundary and the pattern of a hatch, in the coordinates of its plane.
#pragma once

#include "host/scene/EntityTags.h"
#include "host/scene/Path.h"

namespace scene {

struct HatchLines { // one family of parallel lines
  double angle = 0; // radians
  AcGePoint2d base;
  AcGeVector2d offset;        // from one line to the next
  std::vector<double> dashes; // above 0 a dash, below a gap, 0 a dot; empty: drawn through
};

struct HatchData {
  std::vector<Path> loops;
  std::vector<HatchLines> lines;
  bool solid = false;
};

// Loops of a style that leaves islands out are dropped here, so that filling by even and odd is right.
HatchData ReadHatch(const EntityTags& tags);

} // namespace scene
