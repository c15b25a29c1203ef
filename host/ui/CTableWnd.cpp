// Columns, rows, cells and the selection of tables. Their edits are in TableEdit.cpp.
#include "host/ui/CTableWnd.h"

#include "host/afx/CInvalidArgException.h"
#include "host/ui/CFormWnd.h"

#include <algorithm>

const UiColumn& CTableWnd::Column(int column) const {
  if (column < 0 || column >= GetColumnCount()) AfxThrowInvalidArgException();
  return m_columns[static_cast<std::size_t>(column)];
}

const UiRow& CTableWnd::Row(int row) const {
  if (!IsRow(row)) AfxThrowInvalidArgException();
  return m_rows[static_cast<std::size_t>(row)];
}

const UiCell& CTableWnd::Cell(int row, int column) const {
  Column(column);
  return Row(row).cells[static_cast<std::size_t>(column)];
}

UiColumn& CTableWnd::ColumnAt(int column) {
  return const_cast<UiColumn&>(Column(column));
}
UiRow& CTableWnd::RowAt(int row) {
  return const_cast<UiRow&>(Row(row));
}
UiCell& CTableWnd::CellAt(int row, int column) {
  return const_cast<UiCell&>(Cell(row, column));
}

// --- columns
int CTableWnd::AddColumn(const CString& title, int width) {
  m_columns.push_back({title, width});
  for (UiRow& row : m_rows) row.cells.emplace_back();
  Notify(UiChange::Kind::content);
  return GetColumnCount() - 1;
}

void CTableWnd::SetColumnWidth(int column, int width) {
  ColumnAt(column).width = width;
  Notify(UiChange::Kind::content);
}

void CTableWnd::SetColumnTitle(int column, const CString& title) {
  ColumnAt(column).title = title;
  Notify(UiChange::Kind::content);
}

void CTableWnd::SetColumnFixed(int column, bool fixed) {
  ColumnAt(column).fixed = fixed;
  Notify(UiChange::Kind::content);
}

void CTableWnd::SetColumnReadOnly(int column, bool readOnly) {
  ColumnAt(column).readOnly = readOnly;
  Notify(UiChange::Kind::content);
}

void CTableWnd::SetColumnPressed(int column, bool pressed) {
  ColumnAt(column).pressed = pressed;
  Notify(UiChange::Kind::content);
}

void CTableWnd::SetColumnKeepsWidth(int column, bool keeps) {
  ColumnAt(column).keepsWidth = keeps;
  Notify(UiChange::Kind::content);
}

void CTableWnd::ShowColumnTitles(bool show) {
  m_titlesShown = show;
  Notify(UiChange::Kind::content);
}

void CTableWnd::ShowGridLines(bool show) {
  m_gridLines = show;
  Notify(UiChange::Kind::look);
}

bool CTableWnd::HasColumnTitles() const {
  return std::any_of(m_columns.begin(), m_columns.end(),
                     [](const UiColumn& c) { return !c.title.IsEmpty(); });
}

// --- rows
int CTableWnd::InsertRow(int row, const std::vector<CString>& texts, void* data) {
  if (row < 0 || row > GetRowCount()) AfxThrowInvalidArgException();
  UiRow added;
  added.data = data;
  added.cells.resize(m_columns.size());
  for (std::size_t i = 0; i < std::min(texts.size(), added.cells.size()); ++i) added.cells[i].text = texts[i];
  m_rows.insert(m_rows.begin() + row, std::move(added));
  if (m_focusRow >= row) ++m_focusRow;
  if (m_edit && m_edit->row >= row) ++m_edit->row;
  std::set<int> moved;
  for (const int selected : m_selected) moved.insert(selected >= row ? selected + 1 : selected);
  m_selected = std::move(moved);
  Notify(UiChange::Kind::content);
  return row;
}

void CTableWnd::DeleteRow(int row) {
  Row(row);
  m_rows.erase(m_rows.begin() + row);
  if (m_edit && m_edit->row == row) {
    m_edit.reset();
    EndEditing();
  }
  if (m_edit && m_edit->row > row) --m_edit->row;
  if (m_focusRow == row) m_focusRow = m_focusColumn = -1;
  if (m_focusRow > row) --m_focusRow;
  std::set<int> moved;
  for (const int selected : m_selected)
    if (selected != row) moved.insert(selected > row ? selected - 1 : selected);
  m_selected = std::move(moved);
  Notify(UiChange::Kind::content);
}

void CTableWnd::DeleteAllRows(int from) {
  if (from < 0 || from > GetRowCount()) AfxThrowInvalidArgException();
  m_rows.erase(m_rows.begin() + from, m_rows.end());
  if (m_edit && m_edit->row >= from) {
    m_edit.reset();
    EndEditing();
  }
  if (m_focusRow >= from) m_focusRow = m_focusColumn = -1;
  m_selected.erase(m_selected.lower_bound(from), m_selected.end());
  Notify(UiChange::Kind::content);
}

void CTableWnd::SetRowFixed(int row, bool fixed) {
  RowAt(row).fixed = fixed;
  Notify(UiChange::Kind::row, row);
}

void CTableWnd::SetRowHeight(int row, int height) {
  RowAt(row).height = height;
  Notify(UiChange::Kind::row, row);
}

void CTableWnd::SetRowData(int row, void* data) {
  RowAt(row).data = data;
}

// --- cells
void CTableWnd::SetItemText(int row, int column, const CString& text) {
  CellAt(row, column).text = text;
  Notify(UiChange::Kind::row, row);
}

void CTableWnd::SetCellReadOnly(int row, int column, bool readOnly) {
  CellAt(row, column).readOnly = readOnly;
  Notify(UiChange::Kind::row, row);
}

void CTableWnd::SetCellColours(int row, int column, std::optional<COLORREF> background,
                               std::optional<COLORREF> foreground) {
  UiCell& cell = CellAt(row, column);
  cell.background = background;
  cell.foreground = foreground;
  Notify(UiChange::Kind::row, row);
}

void CTableWnd::SetCellChoices(int row, int column, std::shared_ptr<const std::vector<CString>> choices,
                               bool freeText) {
  UiCell& cell = CellAt(row, column);
  cell.choices = std::move(choices);
  cell.freeText = freeText;
  Notify(UiChange::Kind::row, row);
}

void CTableWnd::SetCellImage(int row, int column, int image) {
  CellAt(row, column).image = image;
  Notify(UiChange::Kind::row, row);
}

void CTableWnd::SetCellPicture(int row, int column, const CString& file) {
  CellAt(row, column).picture = file;
  Notify(UiChange::Kind::row, row);
}

void CTableWnd::MergeCells(int firstRow, int firstColumn, int lastRow, int lastColumn) {
  Cell(firstRow, firstColumn);
  Cell(lastRow, lastColumn);
  if (lastRow < firstRow || lastColumn < firstColumn) AfxThrowInvalidArgException();
  for (int row = firstRow; row <= lastRow; ++row)
    for (int column = firstColumn; column <= lastColumn; ++column)
      CellAt(row, column).spanRows = CellAt(row, column).spanColumns = 0;
  UiCell& first = CellAt(firstRow, firstColumn);
  first.spanRows = lastRow - firstRow + 1;
  first.spanColumns = lastColumn - firstColumn + 1;
  Notify(UiChange::Kind::content);
}

void CTableWnd::SetImages(std::vector<CString> pictures) {
  m_images = std::move(pictures);
  Notify(UiChange::Kind::content);
}

CString CTableWnd::ImageName(int image) const {
  const bool named = image >= 0 && static_cast<std::size_t>(image) < m_imageNames.size();
  return named ? m_imageNames[static_cast<std::size_t>(image)] : CString();
}

// --- selection
void CTableWnd::SetCurSel(int row, int column) {
  m_selected.clear();
  m_focusRow = m_focusColumn = -1;
  if (IsCell(row, column) && !Row(row).fixed) {
    m_selected.insert(row);
    m_focusRow = row;
    m_focusColumn = column;
  }
  Notify(UiChange::Kind::selection);
}

void CTableWnd::SelectRow(int row, bool selected) {
  if (Row(row).fixed) return;
  if (selected) {
    m_selected.insert(row);
  } else {
    m_selected.erase(row);
  }
  Notify(UiChange::Kind::selection);
}

UiOutcome CTableWnd::NoSuchCell() const {
  return {L"“" + GetCaption() + L"”没有这一单元格。", L"表中的一行一列"};
}

UiOutcome CTableWnd::BeginTableEvent() {
  UiOutcome outcome = BeginUserEvent();
  if (outcome && !FinishEdit()) return {L"正在编辑的内容还没有被接受。", L"先完成编辑，或用 close 关闭"};
  return outcome;
}

UiOutcome CTableWnd::UserClick(int row, int column, Pick pick) {
  if (m_edit && m_edit->row == row && m_edit->column == column) return {};
  UiOutcome outcome = BeginTableEvent();
  if (!outcome) return outcome;
  if (!IsCell(row, column) || Row(row).fixed) return NoSuchCell();
  if (!m_multiSelect || pick == Pick::only) {
    SetCurSel(row, column);
  } else {
    if (pick == Pick::toggle) SelectRow(row, !IsRowSelected(row));
    if (pick == Pick::extend)
      for (int i = std::max(0, std::min(m_focusRow, row)); i <= std::max(m_focusRow, row); ++i)
        SelectRow(i, true);
    m_focusRow = row;
    m_focusColumn = column;
    Notify(UiChange::Kind::selection);
  }
  CellClicked(row, column);
  return {};
}

UiOutcome CTableWnd::UserDoubleClick(int row, int column) {
  UiOutcome outcome = UserClick(row, column);
  if (!outcome || !IsCell(row, column)) return outcome;
  CellDoubleClicked(row, column);
  return {};
}

bool CTableWnd::CanPress(int row, int column) const {
  return IsCell(row, column) && !Row(row).fixed && Column(column).pressed && Column(column).width > 0 &&
         !Cell(row, column).readOnly;
}

UiOutcome CTableWnd::UserPress(int row, int column) {
  UiOutcome outcome = UserClick(row, column);
  if (!outcome) return outcome;
  const CFormWnd* top = TopForm();
  if (top && top->HasEnded()) return {};
  if (!CanPress(row, column)) return {L"“" + GetCaption() + L"”的这一单元格不能点按。", L"可以点按的单元格"};
  CellPressed(row, column);
  return {};
}

UiOutcome CTableWnd::UserOpenMenu(int row, int column) {
  UiOutcome outcome = BeginTableEvent();
  if (!outcome) return outcome;
  if (!Menu.Exists()) return {L"“" + GetCaption() + L"”没有右键菜单。", {}};
  if (row == -1) return {};
  if (!IsCell(row, column) || Row(row).fixed) return NoSuchCell();
  if (IsRowSelected(row)) {
    m_focusRow = row;
    m_focusColumn = column;
    Notify(UiChange::Kind::selection);
    return {};
  }
  return UserClick(row, column);
}
