// The friction factor of a pipe that runs full, after Darcy and Weisbach.
#pragma once

namespace hydraulics {

// Up to here the flow is laminar, and from the second on turbulent, as engineers reckon. What a pipe does in
// between nobody can tell; the factor goes in a straight line from one to the other, so that it never jumps.
inline constexpr double kLaminarReynolds = 2320;
inline constexpr double kTurbulentReynolds = 4000;

// 64/Re for laminar flow, the solution of the equation of Colebrook and White for turbulent flow, to the last
// digits of a double. reynolds above 0 and finite; relativeRoughness, the absolute roughness by the inner
// diameter, from 0 (smooth) to below 1. NaN for anything else.
double FrictionFactor(double reynolds, double relativeRoughness);

// The equation's own solution for any Reynolds number above 0, for those who want it below 4000 too:
// 1/sqrt(f) = -2 lg(k/(3.71 d) + 2.51/(Re sqrt(f))).
double ColebrookFactor(double reynolds, double relativeRoughness);

} // namespace hydraulics
