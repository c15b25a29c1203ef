// Lines that a user or a script gives to an open dialog or bar. One that can't be obeyed is refused, as at
// any prompt.
#pragma once

#include "host/afx/CString.h"

#include <vector>

class CDialog;
class CFormWnd;

namespace console {

void ObeyFormLine(CFormWnd& form, const CString& line);
// For a dialog that waits for nothing but such lines: an empty one is passed over, and Escape gives up an
// edit or the dialog.
void ObeyModalLine(CDialog& dialog, const CString& line);
// "bar LINE" at the command prompt is a line for the last of the windows that stand beside other work and can
// be seen. Whether the line was one of those.
bool ObeyBarLine(const std::vector<CFormWnd*>& windows, const CString& line);

} // namespace console
