// Rows, columns and items of controls as a typed line names them: by number from 1, or by text.
#pragma once

#include "host/ui/CTableWnd.h"
#include "host/ui/CTreeCtrl.h"

namespace console {

struct DialogRow {
  int index = -1; // of the control; -1 for an item of a tree
  HTREEITEM item = nullptr;
  std::vector<CString> texts; // any of them names it
};

// What a user would count: rows that are no headings, entries, options, pages, items of a tree from the top.
std::vector<DialogRow> DialogRows(CWnd& control);

// By number or text; quotes say that it is a text. Null where there is none.
const DialogRow* FindRow(const std::vector<DialogRow>& rows, const CString& text);
// All rows for "all"; otherwise one, or several with commas between them. Empty where any of them is missing.
std::vector<const DialogRow*> FindRowList(const std::vector<DialogRow>& rows, const CString& text);

// The heading of a column: its title, or its text in the first heading row.
CString ColumnHeading(const CTableWnd& table, int column);
// By heading, or by number among those that are not hidden; -1 where there is none.
int FindColumn(const CTableWnd& table, const CString& text);

struct CellPlace {
  const DialogRow* row = nullptr;
  int column = -1;
};
// "ROW COLUMN". Row null where the text does not name a row and a column; then the outcome tells which is
// missing.
CellPlace FindCell(const CTableWnd& table, const std::vector<DialogRow>& rows, const CString& text,
                   UiOutcome& outcome);

// Every place where a text can be cut in two at blanks outside of quotes, with the blanks left out.
std::vector<std::pair<CString, CString>> CutsAtBlanks(const CString& text);

} // namespace console
