// The way that MOVE and COPY ask for.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/ed/EdPrompts.h"
#include "host/ge/AcGeVector3d.h"

#include <optional>
#include <vector>

namespace commands {

// Asks for a base point and a second point, or for the displacement itself; Enter at the second point takes
// the base point as the displacement. Nothing for Escape. ids are shown on their way.
std::optional<AcGeVector3d> AskDisplacement(const std::vector<AcDbObjectId>& ids);

// Asks for the displacement itself. Nothing for Escape.
std::optional<AcGeVector3d> AskVector();

// The question for a point that shows the entities shifted from base to the cursor.
ed::Question TargetQuestion(const CString& prompt, const wchar_t* keywords,
                            const std::vector<AcDbObjectId>& ids, const AcGePoint3d& base);

} // namespace commands
