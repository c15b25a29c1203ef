#include "host/console/verbs/VerbArguments.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CTableWnd.h"

namespace console {
namespace {

// An edit that stands open at the cell is gone on with; one that a rule refuses afterwards stands open, which
// its message has told.
UiOutcome EditCell(CTableWnd& table, const CString& where, const CString& text) {
  const auto rows = DialogRows(table);
  UiOutcome outcome;
  const auto cell = FindCell(table, rows, where, outcome);
  if (!cell.row) return outcome;
  const UiCell& shown = table.Cell(cell.row->index, cell.column);
  if (shown.choices) return table.UserChoose(cell.row->index, cell.column, text);
  outcome = table.UserBeginEdit(cell.row->index, cell.column);
  if (outcome) outcome = table.UserTypeEdit(text);
  return outcome ? table.UserEndEdit() : outcome;
}

} // namespace

UiOutcome verbs::Edit(const DialogOrder& order) {
  UiOutcome outcome;
  const auto parsed = ParseAssignment(
      order, [](const DialogTarget& t) { return Is<CTableWnd>(t) || dynamic_cast<CPropTree*>(t.control); },
      outcome);
  if (!parsed) return outcome;
  const auto& [found, text] = *parsed;
  if (auto* table = dynamic_cast<CTableWnd*>(found.target.control)) return EditCell(*table, found.rest, text);
  return SetProperty(found.target, found.rest, text);
}

} // namespace console
