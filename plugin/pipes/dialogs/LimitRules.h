// Rules of the table of velocity limits that its dialog goes by.
#pragma once

#include "plugin/pipes/limits/CZPFlowVelocityMng.h"

namespace pipes {

// Whether a text may name a pipe size: it must begin with a number above 0 and end in one.
bool IsLimitName(const CString& text);
// Ascending by the number that the names begin with; equal ones keep their order.
void SortLimits(CZPFlowVelocityMng& table);

} // namespace pipes
