// What a block draws where nothing but its place is another: insertions of one look on one layer repeat the
// same shapes.
#pragma once

#include "host/scene/EntityTags.h"
#include "host/scene/Look.h"
#include "host/scene/Painter.h"
#include "host/scene/Shape.h"

#include <memory>
#include <vector>

class AcDbEntity;

namespace scene {

// An entity of a block, which comes again with the next insertion.
struct BlockEntity {
  EntityTags tags;
  Painter painter;
  std::unique_ptr<Shape> shape; // null before it is drawn
};

// What the look of a block's entities depends on.
struct BlockUse {
  AcDbObjectId block;
  Look byBlock;
  AcDbObjectId layer;

  bool operator==(const BlockUse&) const = default;
  struct Hash {
    std::size_t operator()(const BlockUse& use) const {
      const std::hash<AcDbObjectId> hash;
      return hash(use.block) * 31 + hash(use.layer);
    }
  };
};

struct BlockShapes {
  struct Part {
    const AcDbEntity* entity;
    const BlockEntity* drawn; // with a shape that is whole
    Look look;
  };
  enum class State { unknown, whole, mixed }; // mixed: something in the block is no shape
  State state = State::unknown;
  std::vector<Part> parts;
};

} // namespace scene
