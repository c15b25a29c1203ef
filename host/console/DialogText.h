// What a dialog shows, as lines of text.
#pragma once

#include "host/ui/CFormWnd.h"

namespace console {

// All of it, in the order of its layout. Long tables are cut, which is told.
CString FormText(CFormWnd& form);
// One control in full.
CString ControlText(CFormWnd& form, CWnd& control);

} // namespace console
