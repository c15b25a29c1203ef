// Reading and writing whole files so that no failure, not even a power cut, leaves half a file or none.
// Paths may be in the callers' form (drive letters, backslashes) or native; see Paths.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/afx/FileResult.h"

namespace afx {

// Replaces or creates the file. The folder must exist. Until the new content is safely on the disk the old
// file stays, and on any failure it stays for good. Permissions of the old file are kept; a symbolic link is
// followed.
FileResult WriteFileAtomically(const CString& path, std::string_view bytes);

constexpr std::uint64_t kDefaultReadLimit = 1024ull * 1024 * 1024;

// Reads all of a regular file. Fails, with an empty out, for a missing or unreadable one, for a folder, and
// for more than limit bytes.
FileResult ReadWholeFile(const CString& path, std::string& out, std::uint64_t limit = kDefaultReadLimit);

// Copies a file that is about to be replaced to PATH.rescued-1, or the first free number, and says so in the
// message log. Returns the copy's path in the form of the argument; empty, with the reason in the log, when
// no copy could be made: the caller must then leave the file alone.
CString RescueFile(const CString& path);

} // namespace afx
