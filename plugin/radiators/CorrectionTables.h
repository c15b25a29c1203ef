// The four tables that a designer takes the correction factors β1 to β4 from: the text of every cell, and how
// a window shows them. The text is what a chosen cell passes on, so each keeps the decimals it is written
// with. docs/radiators.md tells where the figures come from.
#pragma once

#include <span>

#include "host/afx/CString.h"

namespace radiators {

struct CorrectionCell {
  const wchar_t* text = L""; // of a picture: the name of its file
  bool isPicture = false;
};

// Cells shown as one, under the text of the first.
struct CellBlock {
  int row, column, rows, columns;
};

struct CorrectionTable {
  const wchar_t* title; // of the window and of the table
  int rows, columns;
  std::span<const int> fixedRows; // these and column 0 hold labels, the others values
  std::span<const CellBlock> merged;
  std::span<const int> columnWidths;     // pixels, one a column; 0 leaves it to the control
  std::span<const int> rowHeights;       // pixels, one a row; 0 leaves it to the control
  std::span<const CorrectionCell> cells; // row by row

  // Raises CInvalidArgException for a cell that the table lacks.
  const CorrectionCell& At(int row, int column) const;
  bool IsLabel(int row, int column) const;
};

inline constexpr int kCorrectionTableCount = 4;

// Index 0 to 3 for β1 to β4; null for any other.
const CorrectionTable* FindCorrectionTable(int index);

// Where the picture of that name stands in the installation.
CString CorrectionPicturePath(const CString& fileName);

} // namespace radiators
