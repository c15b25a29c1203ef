#include "host/console/verbs/VerbArguments.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CEdit.h"
#include "host/ui/CListBox.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"

namespace console {
namespace {

// The row by its text, for controls that have no other way to be set.
template <class Control> UiOutcome SelectByText(Control& control, const CString& text) {
  const auto rows = DialogRows(control);
  const DialogRow* row = FindRow(rows, text);
  return row ? control.UserSelect(row->index) : MissingRow(text, rows);
}

} // namespace

UiOutcome verbs::Set(const DialogOrder& order) {
  UiOutcome outcome;
  const auto line = ParseAssignment(
      order,
      [](const DialogTarget& t) {
        return Is<CEdit>(t) || Is<CComboBox>(t) || Is<CListBox>(t) || Is<CRadioGroup>(t) ||
               dynamic_cast<CPropTree*>(t.control);
      },
      outcome);
  if (!line) return outcome;
  const auto& [found, text] = *line;
  CWnd* control = found.target.control;
  if (dynamic_cast<CPropTree*>(control)) return SetProperty(found.target, found.rest, text);
  if (auto more = NothingMore(found.rest); !more) return more;
  if (auto* list = dynamic_cast<CListBox*>(control)) return SelectByText(*list, text);
  if (auto* radios = dynamic_cast<CRadioGroup*>(control)) return SelectByText(*radios, text);
  if (auto* combo = dynamic_cast<CComboBox*>(control)) {
    const bool known = combo->FindStringExact(text) >= 0;
    return known || combo->TakesFreeText() ? combo->UserType(text) : SelectByText(*combo, text);
  }
  auto& edit = static_cast<CEdit&>(*control);
  outcome = edit.UserType(text);
  if (outcome) edit.UserLeave();
  return outcome;
}

} // namespace console
