// Scripts answer message boxes, in a window as at the console.
#pragma once

#include "host/ed/EdFrontEnd.h"

#include <optional>

namespace desktop {

// The button that the next line of the running script presses. Nothing where no script runs, or its next line
// is for something else: the user is asked then.
std::optional<std::size_t> ScriptedAnswer(const EdMessageBox& box);

} // namespace desktop
