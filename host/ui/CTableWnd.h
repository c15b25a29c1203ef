// A table of cells: what grids, lists and reports have in common. Rows and columns count from 0, fixed ones
// included. An index that there is not raises CInvalidArgException in functions of the program and is refused
// in those of the user.
//
// In-place editing has one set of rules for all: opening an edit finishes the one that stands open. When an
// edit ends the cell takes its text, and then EditEnded lets a rule look at it. A rule that refuses the text
// sets `reopen`: the cell has its old text again and the edit stands open with the refused one. While the
// window is closing nothing reopens. An edit whose row is deleted is gone without EditEnded.
//
// Cells of a pressed column are no texts to type: whatever changes them is begun by CellPressed.
#pragma once

#include "host/ui/CWnd.h"
#include "host/ui/UiContextMenu.h"
#include "host/ui/UiTable.h"

#include <set>

// How an edit has ended.
struct UiEditEnd {
  int row = 0;
  int column = 0;
  CString oldText;        // of the cell when the edit began
  CString text;           // of the cell now
  bool cancelled = false; // by Escape; text is oldText then
  bool closing = false;   // the window is on its way out
  bool reopen = false;    // set it to refuse
};

class CTableWnd : public CWnd {
 public:
  CTableWnd(CFormWnd& form, CString caption) : CWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::table; }

  // --- columns
  int GetColumnCount() const { return static_cast<int>(m_columns.size()); }
  const UiColumn& Column(int column) const;
  int AddColumn(const CString& title, int width); // its index
  void SetColumnWidth(int column, int width);
  void SetColumnTitle(int column, const CString& title);
  void SetColumnFixed(int column, bool fixed);
  void SetColumnReadOnly(int column, bool readOnly);
  void SetColumnPressed(int column, bool pressed);
  void SetColumnKeepsWidth(int column, bool keeps);
  bool HasColumnTitles() const;
  // Titles that are not shown above the rows still name their columns.
  void ShowColumnTitles(bool show);
  bool ShowsColumnTitles() const { return m_titlesShown && HasColumnTitles(); }
  void ShowGridLines(bool show);
  bool HasGridLines() const { return m_gridLines; }

  // --- rows
  int GetRowCount() const { return static_cast<int>(m_rows.size()); }
  const UiRow& Row(int row) const;
  // Missing texts are empty; those too many are left out. Gives the row.
  int InsertRow(int row, const std::vector<CString>& texts, void* data = nullptr);
  int AddRow(const std::vector<CString>& texts, void* data = nullptr) {
    return InsertRow(GetRowCount(), texts, data);
  }
  void DeleteRow(int row);
  void DeleteAllRows(int from = 0); // that row and all behind it
  void SetRowFixed(int row, bool fixed);
  void SetRowHeight(int row, int height);
  void* GetRowData(int row) const { return Row(row).data; }
  void SetRowData(int row, void* data);

  // --- cells
  const UiCell& Cell(int row, int column) const;
  const CString& GetItemText(int row, int column) const { return Cell(row, column).text; }
  void SetItemText(int row, int column, const CString& text);
  void SetCellReadOnly(int row, int column, bool readOnly);
  void SetCellColours(int row, int column, std::optional<COLORREF> background,
                      std::optional<COLORREF> foreground = std::nullopt);
  void SetCellChoices(int row, int column, std::shared_ptr<const std::vector<CString>> choices,
                      bool freeText = false);
  void SetCellImage(int row, int column, int image);
  void SetCellPicture(int row, int column, const CString& file);
  // Both corners are part of the block; the text of the first cell is shown.
  void MergeCells(int firstRow, int firstColumn, int lastRow, int lastColumn);

  // By which a front end remembers the widths that the user gave the columns; empty for not at all.
  void SetStateName(const CString& name) { m_stateName = name; }
  const CString& StateName() const { return m_stateName; }

  // The pictures that SetCellImage counts: paths of files, or the texts of SVG pictures themselves.
  const std::vector<CString>& Images() const { return m_images; }
  void SetImages(std::vector<CString> pictures);
  // What each of them means, for those who read rather than look.
  void SetImageNames(std::vector<CString> names) { m_imageNames = std::move(names); }
  // Empty for one without a name.
  CString ImageName(int image) const;

  // --- selection: a cell in focus, and whole rows
  int GetFocusRow() const { return m_focusRow; } // -1 for none
  int GetFocusColumn() const { return m_focusColumn; }
  bool IsRowSelected(int row) const { return m_selected.contains(row); }
  const std::set<int>& SelectedRows() const { return m_selected; }
  bool SelectsRows() const { return m_selectsRows; } // rather than cells
  bool IsMultiSelect() const { return m_multiSelect; }
  void SetSelectsRows(bool rows) { m_selectsRows = rows; }
  void SetMultiSelect(bool multiSelect) { m_multiSelect = multiSelect; }
  // The row alone is selected; -1 for none.
  void SetCurSel(int row, int column = 0);
  void SelectRow(int row, bool selected);

  // --- in-place edit
  struct Edit {
    int row = 0;
    int column = 0;
    CString oldText;
    CString text; // as typed so far
  };
  const std::optional<Edit>& CurrentEdit() const { return m_edit; }
  bool IsEditable() const { return m_editable; }
  void SetEditable(bool editable);
  bool CanEdit(int row, int column) const;
  bool CanPress(int row, int column) const;
  // Opens the edit of a cell and selects its row. False if the cell can't be edited, or the edit that stands
  // open was refused.
  bool EditCell(int row, int column);
  bool FinishEdit() override;
  bool CancelEdit() override;

  // --- what the user does
  enum class Pick { only, toggle, extend }; // alone, beside what is selected, all from the focus on
  // A click on a cell, or moving there by a key.
  UiOutcome UserClick(int row, int column, Pick pick = Pick::only);
  UiOutcome UserDoubleClick(int row, int column);
  // A click of the left button alone, or the key for it, on a cell of a pressed column. Moving there,
  // selecting the row among others and the click that opens a menu are none.
  UiOutcome UserPress(int row, int column);
  UiOutcome UserBeginEdit(int row, int column);
  UiOutcome UserTypeEdit(const CString& text); // the whole text of the open edit
  UiOutcome UserEndEdit();                     // Enter
  UiOutcome UserCancelEdit();                  // Escape
  // A drop-down cell: chooses, and thus ends the edit.
  UiOutcome UserChoose(int row, int column, const CString& text);
  // A right click, on no row where row is -1: selects the row, then Menu.Items() are to be shown.
  UiOutcome UserOpenMenu(int row, int column);

  UiContextMenu Menu;
  UiSignal<int, int> CellClicked; // row, column
  UiSignal<int, int> CellDoubleClicked;
  UiSignal<int, int> CellPressed; // behind CellClicked
  UiSignal<int, int> EditBegun;
  UiSignal<UiEditEnd&> EditEnded;

 protected:
  bool IsRow(int row) const { return row >= 0 && row < GetRowCount(); }
  bool IsCell(int row, int column) const { return IsRow(row) && column >= 0 && column < GetColumnCount(); }

 private:
  UiColumn& ColumnAt(int column);
  UiRow& RowAt(int row);
  UiCell& CellAt(int row, int column);
  UiOutcome NoSuchCell() const;
  UiOutcome BeginTableEvent(); // as BeginUserEvent, and finishes the edit of the table itself
  void OpenEdit(Edit edit);
  bool CloseEdit(bool cancelled);

  std::vector<UiColumn> m_columns;
  std::vector<UiRow> m_rows;
  std::vector<CString> m_images;
  std::vector<CString> m_imageNames;
  CString m_stateName;
  std::set<int> m_selected;
  int m_focusRow = -1;
  int m_focusColumn = -1;
  std::optional<Edit> m_edit;
  bool m_editable = true;
  bool m_selectsRows = false;
  bool m_multiSelect = false;
  bool m_titlesShown = true;
  bool m_gridLines = true;
};
