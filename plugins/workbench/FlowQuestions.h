// What flows through a pipe, as the user tells it.
#pragma once

#include <optional>

namespace workbench {

struct FlowRequest {
  double rate = 0;    // m3/h
  double celsius = 0; // of the water, by which its density and viscosity are taken
};

// A flow rate with a temperature, or a load with two, of which the mean counts. presentRate (m3/h) is the
// default where it is above 0. Nothing for Escape.
std::optional<FlowRequest> AskFlow(double presentRate);

// The temperature of the water, in degrees Celsius, that AskFlow was last told with a flow rate.
double LastWaterTemperature();

} // namespace workbench
