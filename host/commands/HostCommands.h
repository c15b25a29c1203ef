// The host's own commands.
#pragma once

#include "host/afx/CString.h"

namespace commands {

// Adds them to the command stack, in the group "HOST". Calling it again changes nothing.
void RegisterHostCommands();

// What a host command does, in a few Chinese words; empty for a name that is none of theirs.
CString Title(const CString& globalName);

} // namespace commands
