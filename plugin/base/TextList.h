// Questions about lists of texts.
#pragma once

#include "host/afx/CString.h"
#include "host/afx/CStringArray.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// Whether the text equals an element, letter case included.
ZP_EXPORT bool IsInTextArr(const CString& text, const CStringArray& array);

} // namespace ZP
