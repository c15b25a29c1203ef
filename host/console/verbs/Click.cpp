#include "host/console/verbs/VerbArguments.h"
#include "host/ui/CButton.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CTabSheet.h"

namespace console {
namespace {

UiOutcome ClickCell(CTableWnd& table, const CString& where) {
  const auto rows = DialogRows(table);
  UiOutcome outcome;
  const auto cell = FindCell(table, rows, where, outcome);
  if (!cell.row) return outcome;
  const int row = cell.row->index;
  return table.CanPress(row, cell.column) ? table.UserPress(row, cell.column)
                                          : table.UserClick(row, cell.column);
}

} // namespace

UiOutcome verbs::Click(const DialogOrder& order) {
  UiOutcome outcome;
  const auto found = FindTarget(
      order.form, order.rest,
      [](const DialogTarget& t) {
        return t.item >= 0 || Is<CButton>(t) || Is<CCheckBox>(t) || Is<CTableWnd>(t);
      },
      outcome);
  if (!found) return outcome;
  const auto& [target, rest] = *found;
  if (auto* table = dynamic_cast<CTableWnd*>(target.control)) return ClickCell(*table, rest);
  if (auto more = NothingMore(rest); !more) return more;
  if (auto* button = dynamic_cast<CButton*>(target.control)) return button->UserClick();
  if (auto* box = dynamic_cast<CCheckBox*>(target.control)) return box->UserCheck(!box->GetCheck());
  if (auto* radios = dynamic_cast<CRadioGroup*>(target.control)) return radios->UserSelect(target.item);
  if (auto* sheet = dynamic_cast<CTabSheet*>(target.control)) return sheet->UserSelect(target.item);
  return static_cast<CPropTree*>(target.control)->UserPress(target.item);
}

} // namespace console
