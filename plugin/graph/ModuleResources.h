// The plug-in as the operating system has mapped it: its handles, its string table, and the bracket in which
// its code shows dialogs.
#pragma once

#include "host/afx/CString.h"

namespace module {

// Called by the frame as the module is mapped and unmapped; more often does no harm.
void Attach();
void Detach();

// Addresses that stand for the module, and for its resources while it is attached; null before and after.
void* InstanceHandle();
void* ResourceHandle();

// A text of the string table; empty for a number that it doesn't have.
CString LoadString(unsigned number);
inline constexpr unsigned kApplicationName = 100;

} // namespace module
