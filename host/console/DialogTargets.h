// What a typed line can name in a dialog: controls by caption, and by their own texts the buttons of a radio
// group, the pages of a tab sheet and the items of a property list.
#pragma once

#include "host/ui/CFormWnd.h"
#include "host/ui/UiOutcome.h"

#include <functional>
#include <optional>
#include <string_view>

namespace console {

struct DialogTarget {
  CWnd* control = nullptr;
  int item = -1;    // of the control: option, page or property; -1 for the control itself
  CString name;     // as it is shown, without a colon or dots at its end
  CString fullName; // with what it belongs to before it, such as "管径/新建"
};

// All that the user can see now, in the order of construction.
std::vector<DialogTarget> DialogTargets(CFormWnd& form);
// The full name where another target bears the same name, otherwise the name.
CString UniqueName(const std::vector<DialogTarget>& targets, const CWnd& control, int item = -1);

// The name of a caption: blanks run together, and what only leads over to a field or a dialog left out.
CString PlainName(const CString& caption);
// How much of the text is the name, which must end at a blank, at "=" or with the text. Blanks may run longer
// or shorter, the case of letters doesn't count, and quotes may stand around the name.
std::optional<std::size_t> NameLength(std::wstring_view text, const CString& name);

struct FoundTarget {
  DialogTarget target;
  CString rest; // of the text, without blanks at its beginning
};
// The target that the text begins with: the longest name among those that fit. Nothing, with the outcome
// filled in, where no target fits or several bear the name.
std::optional<FoundTarget> FindTarget(CFormWnd& form, const CString& text,
                                      const std::function<bool(const DialogTarget&)>& fits,
                                      UiOutcome& outcome);

} // namespace console
