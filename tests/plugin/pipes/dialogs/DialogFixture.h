// A dialog that is open for the length of a call, over catalogues of the test's own.
#pragma once

#include <functional>

#include "host/ui/CButton.h"
#include "tests/support/UiFrontEndScript.h"

namespace dialogtest {

// Runs `test` in the dialog and gives the dialog's result; it is closed with its close box if it is still
// open then.
template <class Dialog>
int Run(UiFrontEndScript& frontEnd, Dialog& dialog, std::function<void(Dialog&)> test) {
  frontEnd.runs.push_back([&](CDialog&) { test(dialog); });
  return dialog.DoModal();
}

inline std::string Utf8(const CString& text) {
  return text.ToUtf8();
}

// "a|b|c" for the cells of a row that can be seen.
inline CString RowText(const CTableWnd& table, int row) {
  CString text;
  bool first = true;
  for (int column = 0; column < table.GetColumnCount(); ++column) {
    if (table.Column(column).width == 0) continue;
    text += (first ? L"" : L"|") + table.GetItemText(row, column);
    first = false;
  }
  return text;
}
// Rows that are no headings, with blanks between them.
inline CString RowsText(const CTableWnd& table) {
  CString text;
  for (int row = 0; row < table.GetRowCount(); ++row)
    if (!table.Row(row).fixed) text += (text.IsEmpty() ? L"" : L" ") + RowText(table, row);
  return text;
}
// Begins, types and ends an edit.
inline UiOutcome Edit(CTableWnd& table, int row, int column, const CString& text) {
  UiOutcome outcome = table.UserBeginEdit(row, column);
  if (outcome) outcome = table.UserTypeEdit(text);
  return outcome ? table.UserEndEdit() : outcome;
}

} // namespace dialogtest
