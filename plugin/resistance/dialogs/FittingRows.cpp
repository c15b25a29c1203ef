#include "plugin/resistance/dialogs/FittingRows.h"

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/resistance/FittingColumns.h"

namespace {

constexpr int kNameWidth = 180;
constexpr int kCoefficientWidth = 64;

} // namespace

void resistance::BuildFittingColumns(CEditListCtrl& list) {
  constexpr int hidden = 0;
  list.AddColumn(L"", hidden);
  list.AddColumn(L"名称", kNameWidth);
  for (const FittingColumn& column : kFittingColumns) {
    const bool takesAllAbove = &column == std::end(kFittingColumns) - 1;
    list.AddColumn((takesAllAbove ? L"≥" : L"") + CString(column.attribute), kCoefficientWidth);
  }
}

std::vector<CString> resistance::FittingRowTexts(const CZPPipePartsCoe& fitting) {
  std::vector<CString> texts{L"", fitting.szName};
  for (const FittingColumn& column : kFittingColumns)
    texts.push_back(ZP::ftoa(fitting.*column.coefficient, 2, true));
  return texts;
}

void resistance::ReadFittingRow(const CEditListCtrl& list, int row, CZPPipePartsCoe& fitting) {
  int index = kNameColumn;
  fitting.szName = list.GetItemText(row, index);
  for (const FittingColumn& column : kFittingColumns)
    fitting.*column.coefficient = afx::wcstod(list.GetItemText(row, ++index), nullptr);
}
