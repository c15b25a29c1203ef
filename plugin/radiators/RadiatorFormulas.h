// The three ways in which the output of one section or one metre of a radiator is given.
#pragma once

#include "plugin/radiators/CZPRadiator.h"

namespace radiators {

// With ΔT the mean temperature of the water less that of the room. Test reports give the output as a power of
// ΔT (GB/T 13754), textbooks the heat-transfer coefficient as such a power (《供热工程》, tables of
// radiators), product standards one output at ΔT = 64.5 ℃.
double ExponentLaw(const CZPRadiator& radiator, double temperatureDifference);
double HeatTransferLaw(const CZPRadiator& radiator, double temperatureDifference);
double FixedOutput(const CZPRadiator& radiator, double temperatureDifference);

struct Formula {
  int code;                                                               // as files and lists have it
  const wchar_t* text;                                                    // as the user sees it
  double (*unitOutput)(const CZPRadiator&, double temperatureDifference); // W
};

inline constexpr Formula kFormulas[] = {
    {0, L"Qs=a×△T^b", ExponentLaw},
    {1, L"Qs=k×f×△T", HeatTransferLaw},
    {2, L"Qs=Qs'", FixedOutput},
};

} // namespace radiators
