#include "plugin/resistance/FittingColumns.h"

namespace resistance {

double CoefficientAt(const CZPPipePartsCoe& fitting, double diameter) {
  for (const FittingColumn& column : kFittingColumns)
    if (diameter <= column.largestDiameter) return fitting.*column.coefficient;
  return 0;
}

// Names of a kind often begin alike ("截止阀DN15", "截止阀DN20"), so their last characters tell most of them
// apart without a comparison of the whole.
const CZPPipePartsCoe* FindFitting(const CZPArray<CZPPipePartsCoe, CZPPipePartsCoe&>& fittings,
                                   const CString& name) {
  const std::wstring_view wanted = name.View();
  const wchar_t last = wanted.empty() ? L'\0' : wanted.back();
  for (const CZPPipePartsCoe& fitting : fittings) {
    const std::wstring_view candidate = fitting.szName.View();
    if (candidate.size() != wanted.size()) continue;
    if (candidate.empty() || (candidate.back() == last && candidate == wanted)) return &fitting;
  }
  return nullptr;
}

} // namespace resistance
