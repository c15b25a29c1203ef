#include "host/console/verbs/VerbArguments.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CListBox.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CTabSheet.h"

namespace console {
namespace {

UiOutcome SelectRows(CTableWnd& table, const CString& text) {
  const auto rows = DialogRows(table);
  const auto chosen = FindRowList(rows, text);
  if (chosen.empty()) {
    UiOutcome outcome;
    const auto cell = FindCell(table, rows, text, outcome);
    return cell.row ? table.UserClick(cell.row->index, cell.column) : MissingRow(text, rows);
  }
  if (chosen.size() > 1 && !table.IsMultiSelect())
    return {L"“" + table.GetCaption() + L"”只能选择一行。", L"一个行号"};
  int column = 0;
  while (column < table.GetColumnCount() && table.Column(column).width <= 0) ++column;
  auto outcome = table.UserClick(chosen[0]->index, column);
  for (std::size_t i = 1; i < chosen.size() && outcome; ++i)
    if (!table.IsRowSelected(chosen[i]->index))
      outcome = table.UserClick(chosen[i]->index, column, CTableWnd::Pick::toggle);
  return outcome;
}

} // namespace

UiOutcome verbs::Select(const DialogOrder& order) {
  UiOutcome outcome;
  const auto found = FindTarget(
      order.form, order.rest,
      [](const DialogTarget& t) {
        return Is<CTableWnd>(t) || Is<CTreeCtrl>(t) || Is<CListBox>(t) || Is<CComboBox>(t) ||
               Is<CRadioGroup>(t) || Is<CTabSheet>(t) || dynamic_cast<CPropTree*>(t.control);
      },
      outcome);
  if (!found) return outcome;
  const auto& [target, rest] = *found;
  if (auto* table = dynamic_cast<CTableWnd*>(target.control)) return SelectRows(*table, rest);
  if (auto* list = dynamic_cast<CPropTree*>(target.control); list && target.item >= 0)
    return list->UserSelect(target.item);
  const auto rows = DialogRows(*target.control);
  const DialogRow* row = FindRow(rows, rest);
  if (!row) return MissingRow(rest, rows);
  if (auto* tree = dynamic_cast<CTreeCtrl*>(target.control)) return tree->UserSelect(row->item);
  if (auto* list = dynamic_cast<CListBox*>(target.control)) return list->UserSelect(row->index);
  if (auto* combo = dynamic_cast<CComboBox*>(target.control)) return combo->UserSelect(row->index);
  if (auto* radios = dynamic_cast<CRadioGroup*>(target.control)) return radios->UserSelect(row->index);
  if (auto* sheet = dynamic_cast<CTabSheet*>(target.control)) return sheet->UserSelect(row->index);
  return static_cast<CPropTree*>(target.control)->UserSelect(row->index);
}

} // namespace console
