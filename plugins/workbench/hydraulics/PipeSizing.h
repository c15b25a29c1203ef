// Which size of a pipe a flow rate needs.
#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace hydraulics {

struct PipeSize {
  double nominal = 0;         // diameter, mm
  double inner = 0;           // diameter, mm
  double highestVelocity = 0; // that is allowed in this size, m/s
};

// The index of the smallest size, by nominal diameter, in which the flow (m3/h) is no faster than allowed; of
// equal ones the first. Nothing when it is too fast in every size. Sizes with a bore of 0 or below fit
// nothing.
std::optional<std::size_t> SmallestSize(std::span<const PipeSize> sizes, double cubicMetresAnHour);

} // namespace hydraulics
