#include "plugin/resistance/FittingColumns.h"

namespace resistance {

double CoefficientAt(const CZPPipePartsCoe& fitting, double diameter) {
  for (const FittingColumn& column : kFittingColumns)
    if (diameter <= column.largestDiameter) return fitting.*column.coefficient;
  return 0;
}

const CZPPipePartsCoe* FindFitting(const CZPArray<CZPPipePartsCoe, CZPPipePartsCoe&>& fittings,
                                   const CString& name) {
  for (const CZPPipePartsCoe& fitting : fittings)
    if (fitting.szName == name) return &fitting;
  return nullptr;
}

} // namespace resistance
