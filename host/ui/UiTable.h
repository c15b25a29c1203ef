// What a table holds: columns, rows of cells, and what is known of each.
#pragma once

#include "host/afx/CString.h"
#include "host/ui/Colour.h"

#include <memory>
#include <optional>
#include <vector>

struct UiColumn {
  CString title; // shown above the rows if any column has one
  int width = 0; // pixels; a column of width 0 is hidden
  bool fixed = false;
  bool readOnly = false;
  bool pressed = false;    // its cells are pressed and not edited, see CTableWnd::CellPressed
  bool keepsWidth = false; // takes no part in width that is left over
};

struct UiCell {
  CString text;
  bool readOnly = false;
  std::optional<COLORREF> background;
  std::optional<COLORREF> foreground;
  // A drop-down cell offers these; many cells may share one list.
  std::shared_ptr<const std::vector<CString>> choices;
  bool freeText = false; // beside the choices
  int image = -1;        // of CTableWnd::Images
  CString picture;       // path of a file that is shown in the cell
  // A merged block is shown by its first cell; the others have spans of 0.
  int spanRows = 1;
  int spanColumns = 1;
};

struct UiRow {
  std::vector<UiCell> cells; // as many as the table has columns
  void* data = nullptr;      // the program's
  bool fixed = false;        // a heading: neither selected nor edited
  int height = 0;            // pixels; 0 as the text needs
};
