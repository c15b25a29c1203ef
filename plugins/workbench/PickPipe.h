// Asks for a pipe of the drawing: an entity that carries a pipe's data.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"

#include <optional>

namespace workbench {

enum class PipeKind { main, riser };

// What the entity's data say it is; nothing for an entity without a pipe's data.
std::optional<PipeKind> PipeKindOf(const AcDbObjectId& id);

// Why the entity can't be changed, a sentence; nothing when it can.
std::optional<CString> ObstacleToChange(const AcDbObjectId& id);

struct PickedPipe {
  AcDbObjectId id;
  PipeKind kind = PipeKind::main;
};

// What the command means to do with the pipe. One on a locked layer can be looked at and not changed.
enum class PickFor { looking, changing };

// Asks until a pipe that will do is picked, and tells what is wrong with another entity. Nothing for Enter
// and for Escape.
std::optional<PickedPipe> PickPipe(const CString& prompt, PickFor purpose);

} // namespace workbench
