// A drawing file made a block of the current drawing.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"

namespace commands {

// Where a name that stands for a drawing file leads: as given, beside the current drawing, or either with
// ".dxf" behind it. Empty when there is none.
CString DrawingFileFor(const CString& typed);

// The block of the file's name: made from the model space of the file or, when the drawing has it already,
// and the user wants it so, redefined by it. Null, with the user told why, when that can't be.
AcDbObjectId BlockFromFile(const CString& path);

} // namespace commands
