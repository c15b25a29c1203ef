// A floor of pipes with about as many joints as pipes: rows of mains end to end, of two elevations in turn,
// with a branch on the middle of each, above it in one row and below it in the next.
#pragma once

#include "plugin/graph/AcArray.h"
#include "tests/support/WorkingDrawing.h"

// Draws count pipes (an even number) in the working drawing.
AcDbObjectIdArray DrawPipeGrid(WorkingDrawing& drawing, int count);
