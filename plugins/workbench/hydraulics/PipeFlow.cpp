#include "plugins/workbench/hydraulics/PipeFlow.h"

#include <cmath>
#include <numbers>
#include <numeric>

#include "plugins/workbench/hydraulics/FrictionFactor.h"

namespace hydraulics {
namespace {

constexpr double kSecondsInAnHour = 3600;
constexpr double kMillimetresInAMetre = 1000;
constexpr double kWattsInAKilowatt = 1000;

} // namespace

double Velocity(double cubicMetresAnHour, double innerDiameter) {
  const double diameter = innerDiameter / kMillimetresInAMetre;
  return cubicMetresAnHour / kSecondsInAnHour / (std::numbers::pi * diameter * diameter / 4);
}

std::optional<PipeFlow> FlowThrough(const PipeBore& bore, double cubicMetresAnHour, const Water& water) {
  const bool isPossible = bore.inner > 0 && bore.roughness >= 0 && cubicMetresAnHour > 0 &&
                          water.density > 0 && water.dynamicViscosity > 0;
  if (!isPossible) return std::nullopt;
  const double diameter = bore.inner / kMillimetresInAMetre;
  PipeFlow flow;
  flow.velocity = Velocity(cubicMetresAnHour, bore.inner);
  flow.reynolds = flow.velocity * diameter / water.kinematicViscosity();
  flow.frictionFactor = FrictionFactor(flow.reynolds, bore.roughness / bore.inner);
  flow.specificFriction = flow.frictionFactor / diameter * water.density * flow.velocity * flow.velocity / 2;
  if (!std::isfinite(flow.specificFriction)) return std::nullopt;
  return flow;
}

std::optional<double> FlowRateOfLoad(double kilowatts, double supplyCelsius, double returnCelsius) {
  const auto supply = WaterAt(supplyCelsius);
  const auto back = WaterAt(returnCelsius);
  const auto mean = WaterAt(std::midpoint(supplyCelsius, returnCelsius));
  if (!(kilowatts > 0) || !supply || !back || !mean || supplyCelsius == returnCelsius) return std::nullopt;
  const double kilogramsASecond =
      kilowatts * kWattsInAKilowatt / std::fabs(supply->enthalpy - back->enthalpy);
  return kilogramsASecond / mean->density * kSecondsInAnHour;
}

} // namespace hydraulics
