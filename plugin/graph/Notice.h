// Message boxes of the package: one caption and one icon for all.
#pragma once

#include "host/ui/MessageBox.h"

namespace notice {

inline constexpr const wchar_t* kCaption = L"青岚提示";

// Says something; the user can only agree.
void Tell(const CString& text);
// Asks before something that can't be taken back. True for OK; Cancel is what Enter presses.
bool Confirm(const CString& text);

} // namespace notice
