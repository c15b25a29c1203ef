// Message boxes of the package: one caption for all.
#pragma once

#include "host/ui/MessageBox.h"

namespace notice {

inline constexpr const wchar_t* kCaption = L"青岚提示";

// Says something; the user can only agree.
void Tell(const CString& text);
// Asks before something that can't be taken back. True for OK; Cancel is what Enter presses.
bool Confirm(const CString& text);
// The same with an exclamation mark instead of the package's icon, for what concerns data that others use.
bool Warn(const CString& text);

} // namespace notice
