// Which registered application keeps the value of a key. A key is filed under its own name wherever a drawing
// of that version allows the name; any other goes under a name made from it, with the key itself in the data.
#pragma once

#include <string_view>

#include "host/afx/CString.h"

struct DrawingForm;

namespace xdata {

// Whether the key can be an application's name in a drawing of that form. The names of the host's own
// applications and those of CarrierName can't.
bool IsApplicationName(const CString& key, const DrawingForm& form);
// The same in a drawing of the newest version, which allows most: where the value may be found in a drawing
// that has been converted to an older version.
bool IsApplicationNameAnywhere(const CString& key);

// What the names of all carriers begin with, as records have it.
inline constexpr std::string_view kCarrierMark = "ZP$";

// The application that keeps a key which can't be a name: "ZP$" and 16 hexadecimal digits, valid everywhere.
CString CarrierName(const CString& key);

} // namespace xdata
