// What the readers of catalogues tell the message log about a file that is readable but not as it should be.
// The user sees none of it.
#pragma once

#include "host/afx/CString.h"

namespace idp {

// The position is that of a key, from the root: "水管界限方案\3".
void LogFault(const CString& path, const CString& position, const wchar_t* reason);

// The same about something that was not read. The next save would lose it for good, so that save keeps a copy
// of the file.
void LogUnread(const CString& path, const CString& position, const wchar_t* reason);

} // namespace idp
