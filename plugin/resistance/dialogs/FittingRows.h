// Fittings of the store as rows of a list: a hidden column, the name, and a coefficient for each diameter.
#pragma once

#include "host/ui/CEditListCtrl.h"
#include "plugin/resistance/CZPPipePartsCoe.h"

namespace resistance {

inline constexpr int kNameColumn = 1; // coefficients follow, from the smallest diameter to the largest

void BuildFittingColumns(CEditListCtrl& list);
// Coefficients with two decimals at most.
std::vector<CString> FittingRowTexts(const CZPPipePartsCoe& fitting);
// Takes over what the row shows: the name as it stands, and of each coefficient the number that its text
// begins with, 0 for none.
void ReadFittingRow(const CEditListCtrl& list, int row, CZPPipePartsCoe& fitting);

} // namespace resistance
