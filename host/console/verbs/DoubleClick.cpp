#include "host/console/verbs/VerbArguments.h"
#include "host/ui/CListBox.h"

namespace console {

UiOutcome verbs::DoubleClick(const DialogOrder& order) {
  UiOutcome outcome;
  const auto found = FindTarget(
      order.form, order.rest,
      [](const DialogTarget& t) { return Is<CTableWnd>(t) || Is<CTreeCtrl>(t) || Is<CListBox>(t); }, outcome);
  if (!found) return outcome;
  const auto rows = DialogRows(*found->target.control);
  const DialogRow* row = FindRow(rows, found->rest);
  auto* table = dynamic_cast<CTableWnd*>(found->target.control);
  if (!row && table) {
    const auto cell = FindCell(*table, rows, found->rest, outcome);
    return cell.row ? table->UserDoubleClick(cell.row->index, cell.column) : MissingRow(found->rest, rows);
  }
  if (!row) return MissingRow(found->rest, rows);
  if (table) return table->UserDoubleClick(row->index, 0);
  if (auto* tree = dynamic_cast<CTreeCtrl*>(found->target.control)) return tree->UserDoubleClick(row->item);
  return static_cast<CListBox*>(found->target.control)->UserDoubleClick(row->index);
}

} // namespace console
