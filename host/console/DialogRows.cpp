#include "host/console/DialogRows.h"

#include "host/console/DialogTargets.h"
#include "host/ed/EdLineParser.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CListBox.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CTabSheet.h"

namespace console {
namespace {

void AddTableRows(std::vector<DialogRow>& rows, const CTableWnd& table) {
  for (int row = 0; row < table.GetRowCount(); ++row) {
    if (table.Row(row).fixed) continue;
    DialogRow named;
    named.index = row;
    for (int column = 0; column < table.GetColumnCount(); ++column)
      if (table.Column(column).width > 0) named.texts.push_back(table.GetItemText(row, column));
    rows.push_back(std::move(named));
  }
}

void AddTreeRows(std::vector<DialogRow>& rows, const CTreeCtrl& tree) {
  tree.Walk([&](HTREEITEM item) {
    CString path = item->text;
    for (const UiTreeItem* above = item->parent; above; above = above->parent)
      path = above->text + L"/" + path;
    rows.push_back({-1, item, {item->text, path}});
    return true;
  });
}

} // namespace

std::vector<DialogRow> DialogRows(CWnd& control) {
  std::vector<DialogRow> rows;
  const auto add = [&](const CString& text) {
    rows.push_back({static_cast<int>(rows.size()), nullptr, {text}});
  };
  if (const auto* table = dynamic_cast<const CTableWnd*>(&control)) AddTableRows(rows, *table);
  if (const auto* tree = dynamic_cast<const CTreeCtrl*>(&control)) AddTreeRows(rows, *tree);
  if (const auto* list = dynamic_cast<const CListBox*>(&control))
    for (int i = 0; i < list->GetCount(); ++i) add(list->GetText(i));
  if (const auto* combo = dynamic_cast<const CComboBox*>(&control))
    for (int i = 0; i < combo->GetCount(); ++i) add(combo->GetLBText(i));
  if (const auto* radios = dynamic_cast<const CRadioGroup*>(&control))
    for (const CString& option : radios->Options()) add(option);
  if (const auto* sheet = dynamic_cast<const CTabSheet*>(&control))
    for (const CPropertyPage* page : sheet->Pages()) add(page->GetCaption());
  if (const auto* list = dynamic_cast<const CPropTree*>(&control))
    for (int i = 0; i < list->GetItemCount(); ++i) add(list->Item(i).label);
  return rows;
}

const DialogRow* FindRow(const std::vector<DialogRow>& rows, const CString& text) {
  CString wanted = CString(text).Trim();
  const bool quoted =
      wanted.GetLength() > 1 && wanted.View().starts_with(L'"') && wanted.View().ends_with(L'"');
  if (quoted) wanted = wanted.Mid(1, wanted.GetLength() - 2);
  const auto number = quoted ? std::nullopt : ed::ParseInteger(wanted);
  if (number && *number >= 1 && *number <= static_cast<long>(rows.size()))
    return &rows[static_cast<std::size_t>(*number - 1)];
  // The first column names a row before the others do.
  std::size_t columns = 0;
  for (const DialogRow& row : rows) columns = std::max(columns, row.texts.size());
  for (std::size_t column = 0; column < columns; ++column)
    for (const DialogRow& row : rows)
      if (column < row.texts.size() && CString(row.texts[column]).Trim() == wanted) return &row;
  return nullptr;
}

std::vector<const DialogRow*> FindRowList(const std::vector<DialogRow>& rows, const CString& text) {
  std::vector<const DialogRow*> found;
  if (const DialogRow* row = FindRow(rows, text)) return {row};
  if (CString(text).Trim().CompareNoCase(L"all") == 0) {
    for (const DialogRow& row : rows) found.push_back(&row);
    return found;
  }
  int at = 0;
  for (CString piece = text.Tokenize(L",，", at); at != -1; piece = text.Tokenize(L",，", at)) {
    const DialogRow* row = FindRow(rows, piece);
    if (!row) return {};
    found.push_back(row);
  }
  return found;
}

CString ColumnHeading(const CTableWnd& table, int column) {
  if (!table.Column(column).title.IsEmpty()) return table.Column(column).title;
  return table.GetRowCount() > 0 && table.Row(0).fixed ? table.GetItemText(0, column) : CString();
}

int FindColumn(const CTableWnd& table, const CString& text) {
  const CString wanted = CString(text).Trim();
  const auto number = ed::ParseInteger(wanted);
  int count = 0;
  for (int column = 0; column < table.GetColumnCount(); ++column) {
    if (table.Column(column).width <= 0) continue;
    if (number && ++count == *number) return column;
    const CString heading = PlainName(ColumnHeading(table, column));
    if (NameLength(wanted.View(), heading) == wanted.View().size()) return column;
  }
  return -1;
}

std::vector<std::pair<CString, CString>> CutsAtBlanks(const CString& text) {
  std::vector<std::pair<CString, CString>> cuts;
  bool quoted = false;
  for (int i = 0; i < text.GetLength(); ++i) {
    if (text[i] == L'"') quoted = !quoted;
    if (quoted || text[i] != L' ' || i == 0 || text[i - 1] == L' ') continue;
    cuts.emplace_back(text.Left(i).Trim(), text.Mid(i).Trim());
  }
  return cuts;
}

CellPlace FindCell(const CTableWnd& table, const std::vector<DialogRow>& rows, const CString& text,
                   UiOutcome& outcome) {
  CString headings;
  for (int column = 0; column < table.GetColumnCount(); ++column)
    if (table.Column(column).width > 0)
      headings += (headings.IsEmpty() ? L"" : L"、") + PlainName(ColumnHeading(table, column));
  bool rowFound = false;
  for (const auto& [rowText, columnText] : CutsAtBlanks(CString(text).Trim())) {
    const DialogRow* row = FindRow(rows, rowText);
    rowFound = rowFound || row;
    if (const int column = FindColumn(table, columnText); row && column >= 0) return {row, column};
  }
  CString range;
  range.Format(L"1 到 %d 的行号或行中文字，和列名 ", static_cast<int>(rows.size()));
  const CString missing = rowFound ? L"没有这一列：“" : L"没有这一行：“";
  outcome = {missing + ed::Excerpt(text) + L"”。", range + headings};
  return {};
}

} // namespace console
