// How a file operation ended.
#pragma once

#include "host/afx/CString.h"

namespace afx {

struct FileResult {
  bool ok = true;
  CString message; // for the user: which file and why; empty when ok
};

} // namespace afx
