// The diameter columns of a fitting: each attribute of the file with its field and the largest diameter, in
// millimetres, that takes it. Choosing a coefficient, reading, writing and testing walk this list.
#pragma once

#include <limits>

#include "plugin/base/CZPArray.h"
#include "plugin/resistance/CZPPipePartsCoe.h"

namespace resistance {

struct FittingColumn {
  const wchar_t* attribute;
  double CZPPipePartsCoe::*coefficient;
  double largestDiameter;
};

// From the smallest diameter to the largest.
inline constexpr FittingColumn kFittingColumns[] = {
    {L"DN15", &CZPPipePartsCoe::dbDN15, 17.5},
    {L"DN20", &CZPPipePartsCoe::dbDN20, 22.5},
    {L"DN25", &CZPPipePartsCoe::dbDN25, 28.5},
    {L"DN32", &CZPPipePartsCoe::dbDN32, 36.0},
    {L"DN40", &CZPPipePartsCoe::dbDN40, 45.0},
    {L"DN50", &CZPPipePartsCoe::dbDN50, std::numeric_limits<double>::infinity()},
};

// 0 for a diameter that is not a number.
double CoefficientAt(const CZPPipePartsCoe& fitting, double diameter);

// The first fitting of exactly that name, or null. It stands in the array, so nothing is copied.
const CZPPipePartsCoe* FindFitting(const CZPArray<CZPPipePartsCoe, CZPPipePartsCoe&>& fittings,
                                   const CString& name);

} // namespace resistance
