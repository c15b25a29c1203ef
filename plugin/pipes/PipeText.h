// Texts of pipes.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// The ASCII digits of a text in their order; all else is dropped, the decimal point too: "DN20.5" gives
// "205".
ZP_EXPORT CString GetDNFromPreDN(const CString& text);

} // namespace ZP
