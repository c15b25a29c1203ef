// Making a change of a folder's entries last.
#pragma once

#include <string>

namespace afx {

// The folder of a native path; "." for a bare name.
std::string FolderOf(const std::string& nativePath);

// Puts a creation or renaming in the folder onto the disk. Not all file systems can; the entry itself stands
// already, so a failure is not reported.
void SyncFolder(const std::string& nativeFolder);

} // namespace afx
