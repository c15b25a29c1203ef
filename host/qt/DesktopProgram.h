// One run of the program in a window, from its options to its exit status. The toolkit shows in no header
// here, and the library may be loaded at run time by RunDesktopName.
#pragma once

#include "host/afx/CString.h"

#include <functional>
#include <optional>
#include <vector>

class CDialog;
class CFormWnd;

struct DesktopJob {
  std::vector<CString> plugIns;
  std::optional<CString> script;
  std::optional<CString> drawing;
  // What a command of the host does, in a few words; empty for an unknown one.
  std::function<CString(const CString&)> commandTitle;
  // Obeys a line of a script in the dialog that stands open.
  std::function<void(CDialog&, const CString&)> obeyDialogLine;
  // Obeys a line at the command prompt that is for one of the windows beside other work, the one shown last
  // at the end. Whether it was such a line.
  std::function<bool(const std::vector<CFormWnd*>&, const CString&)> obeyBarLine;
  // Where settings and drawings saved for the case of a crash are kept; the user's own place without it.
  std::optional<CString> stateFolder;
  // Ends after the script, with a picture of the window in this file (PNG).
  std::optional<CString> screenshot;
};

namespace desktop {

inline constexpr int kDone = 0;
inline constexpr int kRefused = 1;   // a line of the script, when a picture was wanted
inline constexpr int kUnusable = 2;  // a file that can't be read
inline constexpr int kNoDisplay = 3; // there is no screen to show a window on

// The commands of the host must be registered.
int RunDesktop(const DesktopJob& job, int argc, char** argv);

} // namespace desktop

using RunDesktopFunction = int (*)(const DesktopJob*, int, char**);
inline constexpr const char* kRunDesktopName = "ZpRunDesktop";
extern "C" int ZpRunDesktop(const DesktopJob* job, int argc, char** argv);
