#include "plugins/workbench/hydraulics/PipeSizing.h"

#include "plugins/workbench/hydraulics/PipeFlow.h"

namespace hydraulics {

std::optional<std::size_t> SmallestSize(std::span<const PipeSize> sizes, double cubicMetresAnHour) {
  std::optional<std::size_t> best;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    const PipeSize& size = sizes[i];
    if (!(size.inner > 0) || Velocity(cubicMetresAnHour, size.inner) > size.highestVelocity) continue;
    if (!best || size.nominal < sizes[*best].nominal) best = i;
  }
  return best;
}

} // namespace hydraulics
