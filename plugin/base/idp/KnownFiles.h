// What this process knows of the parameter files that it has read or written, so that a save can tell whether
// the file that it is about to replace would be lost. A file counts as known while its content is the same.
#pragma once

#include <string_view>

#include "host/afx/CString.h"

namespace idp {

// The file at path has this content and can be read back. A content marked as foreign stays so.
void RememberGood(const CString& path, std::string_view content);

// The file at path has a version mark that its reader does not know.
void RememberForeign(const CString& path);

// Called before the file at path is replaced: copies it aside when it is damaged or foreign, and says so in
// the message log. False when that failed: the file must stay. A file that this process does not know is read
// and tried.
bool KeepWhatWouldBeLost(const CString& path);

} // namespace idp
