// The one place where paths, as callers build them with backslashes and drive letters, become paths of the
// machine. Drives are folders drive_a to drive_z of the installation.
#pragma once

#include <string>

#include "host/afx/CString.h"

namespace afx {

// The installation folder, native, without a closing separator. Empty until the host sets it: drives then
// fall under the current folder.
void SetInstallRoot(const CString& native);
CString InstallRoot();

// The UTF-8 path to hand to the operating system. Backslashes become slashes; "C:\x" and "c:x" become
// INSTALL/drive_c/x; a path without a drive, absolute or relative, stays where it is. ".." stays as it is
// written, and carried bytes (see Encoding.h) become themselves again.
std::string NativePath(const CString& path);

} // namespace afx
