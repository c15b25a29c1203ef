// Obeys one typed line in a dialog or dock bar. docs/console.md lists the lines.
#pragma once

#include "host/ui/CFormWnd.h"
#include "host/ui/UiOutcome.h"

#include <functional>

namespace console {

// print shows text to the user. The outcome tells why the line was not obeyed and what was expected.
UiOutcome ObeyDialogLine(CFormWnd& form, const CString& line,
                         const std::function<void(const CString&)>& print);

} // namespace console
