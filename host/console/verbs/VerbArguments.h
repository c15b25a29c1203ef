// What several verbs find in their lines: targets of a kind, texts behind "=", rows.
#pragma once

#include "host/console/DialogRows.h"
#include "host/console/DialogTargets.h"
#include "host/console/verbs/DialogVerbs.h"

#include <optional>

namespace console {

using Fits = std::function<bool(const DialogTarget&)>;

// The control and none of its items.
inline bool IsItself(const DialogTarget& target) {
  return target.item < 0;
}
template <class Control> bool Is(const DialogTarget& target) {
  return IsItself(target) && dynamic_cast<Control*>(target.control);
}

// The line cut at the first "=" before which there is a target; found.rest is what stands between target and
// "=".
struct Assignment {
  FoundTarget found;
  CString text;
};
std::optional<Assignment> ParseAssignment(const DialogOrder& order, const Fits& fits, UiOutcome& outcome);

// Refuses text where the line should end.
UiOutcome NothingMore(const CString& rest);
UiOutcome MissingRow(const CString& text, const std::vector<DialogRow>& rows);

// Sets a property. Where the target is the whole list, `between` names the property.
UiOutcome SetProperty(const DialogTarget& target, const CString& between, const CString& text);

} // namespace console
