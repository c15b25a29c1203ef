// The commands that open a dialog. The dialog's result is nobody's.
#pragma once

namespace dialogs {

void SystemSettings(); // KOR_XTSZ

} // namespace dialogs
