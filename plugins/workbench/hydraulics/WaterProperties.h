// Liquid water by temperature: what the flow in a pipe needs of it. Density, enthalpy and heat capacity
// follow the industrial formulation IAPWS-IF97 (region 1), the viscosity the IAPWS formulation of 2008
// without the correction near the critical point, which is nowhere near.
#pragma once

#include <optional>

namespace hydraulics {

struct Water {
  double density = 0;          // kg/m3
  double dynamicViscosity = 0; // Pa s
  double enthalpy = 0;         // J/kg, as the formulation counts it: only differences mean something
  double heatCapacity = 0;     // J/(kg K), at constant pressure

  double kinematicViscosity() const { return dynamicViscosity / density; } // m2/s
};

// The temperatures, in degrees Celsius, for which there is an answer at the usual pressure.
inline constexpr double kColdestWater = 0;
inline constexpr double kHottestWater = 150;
// Of a heating or cooling system, absolute. The density differs by less than 0.1 % between it and 1.0 MPa.
inline constexpr double kUsualPressure = 0.6; // MPa

// Nothing outside the temperatures above, for a pressure that is not above 0 or is above 100 MPa, and for one
// at which the water would boil. The boiling pressure is that of IF97's region 4.
std::optional<Water> WaterAt(double celsius, double megapascals = kUsualPressure);

// MPa, for the temperatures above.
double BoilingPressure(double celsius);

// Pa s, of water of that density (kg/m3) and temperature.
double DynamicViscosity(double celsius, double density);

} // namespace hydraulics
