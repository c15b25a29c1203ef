// Where front ends hand over what the user does: through this, all of it.
#pragma once

#include "host/ui/UiOutcome.h"

#include <functional>

// Runs an event of the user. A CFileException that a rule of the window lets pass is told in a message box,
// and the window goes on; other exceptions are faults of the program and pass on.
UiOutcome ObeyUser(const std::function<UiOutcome()>& event);
