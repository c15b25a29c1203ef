// Binary drawing files as tag text, so that one reader serves both forms.
#pragma once

#include "host/afx/CString.h"

#include <string>
#include <string_view>

namespace dxf {

bool isBinary(std::string_view bytes);

struct TagText {
  std::string text; // "code LF value LF"
  CString error;    // why it ends early, with the byte offset; empty when whole
};

// Doubles in shortest round-trip form, binary chunks as hexadecimal. Group codes take one byte (old files) or
// two: which, the first tag tells.
TagText textFromBinary(std::string_view bytes);

} // namespace dxf
