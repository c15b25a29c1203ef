// The way that MOVE and COPY ask for.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/ge/AcGePoint3d.h"
#include "host/ge/AcGeVector3d.h"

#include <optional>
#include <vector>

namespace commands {

struct Displacement {
  AcGeVector3d vector;
  std::optional<AcGePoint3d> base; // where it was counted from; nothing where it was given as such
};

// Asks for a base point and a second point, or for the displacement itself; Enter at the second point takes
// the base point as the displacement. Nothing for Escape. ids are shown on their way.
std::optional<Displacement> AskDisplacement(const std::vector<AcDbObjectId>& ids);

// Asks for one more target from the same base; nothing for Enter and Escape. cancelled tells which.
std::optional<AcGeVector3d> AskAnotherTarget(const std::vector<AcDbObjectId>& ids, const AcGePoint3d& base,
                                             bool& cancelled);

} // namespace commands
