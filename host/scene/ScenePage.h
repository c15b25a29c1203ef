// A piece of a space's picture: some hundred or thousand entities that follow one another in the order of
// painting.
#pragma once

#include "host/scene/Scene.h"

#include <vector>

namespace scene {

constexpr std::size_t kPageSize = 2048; // entities

struct ScenePage {
  std::vector<AcDbObjectId> entities;
  Scene scene;
  bool stale = true; // to be made, or made anew
};

} // namespace scene
