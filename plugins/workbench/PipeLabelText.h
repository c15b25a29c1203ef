// What is written beside a pipe.
#pragma once

#include "plugins/workbench/PickPipe.h"

namespace workbench {

// By the label scheme of the pipe's material; a riser's number stands ahead, unless it is 0 without a prefix:
// "L3 DN25". A material that the catalogue lacks is labelled by its diameter alone, "DN25".
CString LabelTextOf(const PickedPipe& pipe);

} // namespace workbench
