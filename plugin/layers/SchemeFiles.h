// The files of layer schemes. Each is one file of the folder Data\LayerManager, and its name without the
// extension is the name of the scheme.
#pragma once

#include <vector>

#include "host/afx/CString.h"

class CZPManagerLayer;

namespace layers {

inline constexpr const wchar_t* kDefaultScheme = L"默认方案";

CString SchemePath(const CString& name);
// The default scheme first, whether or not it has a file, then all others by name.
std::vector<CString> SchemeNames();

// Replaces the file of that name. False when the one can't be read or the other can't be written, and for a
// name that would lead out of the folder; what stood there stays then.
bool CopyScheme(const CString& from, const CString& to);
bool DeleteScheme(const CString& name);
// Raises CFileException when the file can't get the name, which another scheme may have.
void RenameScheme(const CString& oldName, const CString& newName);

// As ReadData of the manager. Of a file that breaks off within a category what was read stays; the message
// log names it, and a copy is kept before it is next replaced.
bool ReadScheme(CZPManagerLayer& manager, const CString& name);

} // namespace layers
