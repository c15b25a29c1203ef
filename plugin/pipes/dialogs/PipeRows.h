// The diameter table of a pipe material as rows of a list.
#pragma once

#include "host/ui/CEditListCtrl.h"
#include "plugin/pipes/SZPPipeDNData.h"

namespace pipes {

inline constexpr int kNominalColumn = 0;
inline constexpr int kOuterColumn = 1;
inline constexpr int kInnerColumn = 2;
inline constexpr int kThicknessColumn = 3;

void BuildPipeColumns(CEditListCtrl& list);
std::vector<CString> PipeRowTexts(const SZPPipeDNData& row);
// The four numbers that the texts of the row begin with.
SZPPipeDNData ReadPipeRow(const CEditListCtrl& list, int row);
// Whether a cell may hold the text: its number must not be 0. No number counts as 0.
bool IsPipeNumber(const CString& text);
// After an edit of a diameter: writes the wall thickness that follows from both.
void UpdateThickness(CEditListCtrl& list, int row, int editedColumn);

} // namespace pipes
