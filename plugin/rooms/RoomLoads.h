// The loads of a room that the user picks in the drawing.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// Asks for one room. 1 when one was picked, and id is its; 0, with id as it was, for Escape and for Enter.
ZP_EXPORT int SelectedSingleVkDbHvacSpace(AcDbObjectId& id);

// Each asks for a room under a write lock on the current document, if it can be had, and gives 1 with its
// figures as the room has them: W, degrees Celsius. On 0 both figures stay as they were: nothing was picked,
// or the entity could not be opened.

// For heating: the room's total, and the largest total of the winter.
ZP_EXPORT int GetSelHvacSpaceHMLoad(double& total, double& most);
// For cooling: the room's total, and the largest total of the summer.
ZP_EXPORT int GetSelHvacSpaceCMLoad(double& total, double& most);
// The room's total for heating, and the indoor temperature of its record. 0 also for a room without a record,
// which the command line tells.
ZP_EXPORT int GetSelHvacSpaceWinData(double& total, double& temperature);

} // namespace ZP
