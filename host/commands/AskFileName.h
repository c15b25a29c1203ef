// The name of a file that a command works on.
#pragma once

#include "host/afx/CString.h"

#include <optional>
#include <vector>

namespace commands {

struct FileNameQuestion {
  CString prompt;                // at the command line
  CString title;                 // of the chooser
  std::vector<CString> patterns; // such as "*.dxf"
  CString name;                  // that is usual; may be empty
  bool save = false;             // a file that need not exist
};

// Whether there are windows and the user answers; the variable FILEDIA turns choosers off.
bool HasFileChooser();
// By the front end's chooser where there is one; otherwise at the command line. Nothing when it was given up;
// empty for Enter where a usual name is given.
std::optional<CString> AskFileName(const FileNameQuestion& question);

} // namespace commands
