// What NEW, OPEN, SAVE and their kin share.
#pragma once

#include "host/afx/CString.h"

class AcApDocument;

namespace commands {

// Reads the file, makes it current and tells the user what was read and what had to be mended. recover takes
// what can be saved of a broken file. False, with the user told why and what to do, when it can't be read.
bool OpenDrawing(const CString& path, bool recover);

// Writes the document to its own file. False, with the user told, when that fails; the old file stays then.
bool SaveDrawing(AcApDocument& document);
// Asks for a name where the document has none, and always when asked to.
bool SaveDrawingAs(AcApDocument& document);

// Whether a file may be written: asks where it exists already. False, with the user told that it was undone
// ("未保存"), when it may not.
bool MayReplace(const CString& path, const wchar_t* undone);

} // namespace commands
