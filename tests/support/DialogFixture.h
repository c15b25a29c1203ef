// A dialog that is open for the length of a call, over catalogues of the test's own, and what all dialogs are
// tried with.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "host/ui/CButton.h"
#include "host/ui/CTableWnd.h"
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

// Texts that begin with no number.
inline const std::vector<const wchar_t*> kNoNumbers = {L"abc",  L"",           L"  ", L"\"",
                                                       L"a\n1", L"\U0001F600", L"－5"};

// Leaves each cell of the table that can be edited with each text by the close box, in a dialog of its own.
template <class Dialog, class Control, class MakeDialog>
void CloseInTheMiddleOfEachEdit(UiFrontEndScript& frontEnd, Control Dialog::*table, MakeDialog make,
                                const std::function<void(Dialog&)>& before = {}) {
  int cells = 0; // an edit of the empty row adds one, which is not to be edited in turn
  for (const wchar_t* text : {L"", L"x", L"0", L"12.5", L"\n\"\U0001F600"})
    for (int cell = 0; cell == 0 || cell < cells; ++cell) {
      auto dialog = make();
      Run<Dialog>(frontEnd, *dialog, [&](Dialog& open) {
        if (before) before(open);
        Control& shown = open.*table;
        const int columns = shown.GetColumnCount();
        if (cell == 0) cells = columns * shown.GetRowCount();
        if (!shown.UserBeginEdit(cell / columns, cell % columns)) return;
        shown.UserTypeEdit(text);
        open.UserClose();
        EXPECT_TRUE(open.HasEnded());
      });
      EXPECT_TRUE(frontEnd.boxes.empty()) << "no word while the window closes";
    }
}

} // namespace dialogtest
