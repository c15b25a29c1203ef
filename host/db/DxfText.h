// Text values of drawing records: escapes of the format on the way in and out.
#pragma once

#include "host/afx/CString.h"

#include <string>
#include <string_view>

namespace dxf {

// Record text to wide text: UTF-8 (or kept bytes), \U+XXXX, \M+nXXXX (code page by n, 1 to 5), and the caret
// forms of control characters (^J, ^I, ^M, "^ " for the caret itself).
CString decodeText(std::string_view value);

// Wide text to record text: UTF-8, control characters and carets in caret form, so that a value never breaks
// its line. What an old code page lacks becomes \U+XXXX only when the file is written.
std::string encodeText(const CString& text);

} // namespace dxf
