// The resolved properties of one entity, and what an insertion hands down to its block.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/ge/AcGeMatrix3d.h"
#include "host/scene/Color.h"
#include "host/scene/Scene.h"

#include <unordered_set>

namespace scene {

struct Look {
  Color color;
  AcDbObjectId linetype;    // null: drawn through
  double linetypeScale = 1; // the entity's own
  int weight = 25;          // hundredths of a millimetre
  bool hidden = false;      // nothing of its own is to be seen
  bool operator==(const Look&) const = default;
};

// Where entities are drawn: in the space itself, in a block, or through a viewport.
struct Frame {
  AcGeMatrix3d toScene;
  bool inBlock = false;
  Look byBlock;              // what "by block" means
  AcDbObjectId layer;        // what layer 0 means in a block
  double linetypeLength = 1; // lengths of dashes in the scene for 1 here
  std::int32_t clip = Primitive::kNone;
  const std::unordered_set<AcDbObjectId>* frozen = nullptr; // layers that a viewport hides
  int depth = 0;
};

} // namespace scene
