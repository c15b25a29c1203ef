// Questions about a room that is to be placed. Nothing means Escape, as in Asking.h.
#pragma once

#include "host/afx/CString.h"
#include "host/ge/AcGePoint3d.h"

#include <optional>
#include <vector>

namespace workbench {

// The number behind the last one: "101" after "100", "A-010" after "A-009"; the same text where it ends in no
// number.
CString NextNumber(const CString& number);

// The corners of an outline, traced or taken from a polyline; none where the user wants none.
std::optional<std::vector<AcGePoint3d>> AskOutline();

// The middle of the box around the corners.
AcGePoint3d MiddleOf(const std::vector<AcGePoint3d>& corners);

} // namespace workbench
