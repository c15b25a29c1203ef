// The paths of an entity in its own coordinates. An entity of a block comes again with each insertion: its
// shape is made once, and drawn through the matrix of each.
#pragma once

#include "host/scene/Path.h"

#include <vector>

namespace scene {

struct StrokeOptions {
  double width = 0;             // drawing units; 0: the line weight
  bool throughVertices = false; // the linetype does not begin anew at each vertex
  bool solid = false;           // no linetype
};

struct Shape {
  struct Part {
    Path path;
    StrokeOptions options;
    bool filled = false;
  };
  std::vector<Part> parts;
  bool isWhole = true; // false: it drew what paths can't tell
};

} // namespace scene
