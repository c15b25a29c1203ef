// From a number to a line weight of the host.
#pragma once

#include <optional>

#include "host/db/AcDb.h"

namespace ZP {

// Hundredths of a millimetre, or one of the negative special values, cut towards zero and not rounded, as
// drawings have it: 28.99 is 28. Nothing for what is no weight of the host.
std::optional<AcDb::LineWeight> HostLineWeight(double hundredths);

} // namespace ZP
