// Making the drawing of a fan-coil unit from what stands in the current drawing.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbExtents.h"
#include "host/ge/AcGePoint3d.h"

namespace fancoil {

// What the user shows in the drawing.
struct BlockPick {
  std::vector<AcDbObjectId> entities;
  AcGePoint3d insertion;
  AcGePoint3d label; // where the label is placed, counted from the insertion point
};
// Asks for it. Nothing when the user cancels one of the questions.
std::optional<BlockPick> AskForBlock();

struct BlockDrawing {
  std::unique_ptr<AcDbDatabase> drawing; // one insertion of a block, its insertion point at the origin
  AcDbExtents extents;                   // empty for what the host can't draw
};
// Copies of the entities. The current drawing keeps them in a block of a fixed name, in place of what the
// block held before. Nothing, with the reason in the message log, where the drawing can't be locked, and for
// entities that insert that very block.
std::optional<BlockDrawing> MakeBlockDrawing(const BlockPick& pick);

} // namespace fancoil
