// Text styles of the current drawing by name.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/db/AcadStatus.h"

#include <vector>

namespace commands {

// In table order, without the nameless ones that load shape files.
std::vector<CString> TextStyleNames();
// Null for an unknown name.
AcDbObjectId TextStyleByName(const CString& name);
CString CurrentTextStyle();
// False for a style that the drawing lacks.
bool MakeTextStyleCurrent(const CString& name);
// With the properties of another style, or the defaults for null. eInvalidName, eDuplicateRecordName.
Acad::ErrorStatus AddTextStyle(const CString& name, AcDbObjectId like);

} // namespace commands
