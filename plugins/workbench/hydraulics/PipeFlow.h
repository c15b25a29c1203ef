// Water that flows through a pipe: how fast, and what it loses on the way.
#pragma once

#include "plugins/workbench/hydraulics/WaterProperties.h"

#include <optional>

namespace hydraulics {

struct PipeBore {
  double inner = 0;     // diameter, mm
  double roughness = 0; // absolute, mm
};

struct PipeFlow {
  double velocity = 0;         // m/s
  double reynolds = 0;         // the Reynolds number
  double frictionFactor = 0;   // after Darcy and Weisbach
  double specificFriction = 0; // pressure lost along the pipe, Pa/m
};

// Of a flow rate in m3/h. Nothing unless the rate, the diameter, the density and the viscosity are above 0
// and the roughness is not below it.
std::optional<PipeFlow> FlowThrough(const PipeBore& bore, double cubicMetresAnHour, const Water& water);

// m/s, of m3/h through a bore in mm; infinite for a bore of 0.
double Velocity(double cubicMetresAnHour, double innerDiameter);

// The flow rate in m3/h, measured at the mean temperature, that carries a load (kW) between two temperatures,
// whichever is the warmer. Nothing for a load that is not above 0, equal temperatures, and temperatures that
// WaterAt does not answer for.
std::optional<double> FlowRateOfLoad(double kilowatts, double supplyCelsius, double returnCelsius);

} // namespace hydraulics
