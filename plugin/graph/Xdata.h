// Text values by key on entities and table records, kept as extended data that any CAD program carries along
// and shows: docs/formats/extended_data.md tells the form. Keys compare as names in a drawing do, without
// case.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

class AcDbObject;

namespace ZP {

// Attaches the value, or replaces the one under the key. Non-zero on success; 0, with nothing changed, when
// the object can't be opened for write, the key is empty, a text holds a null character, or the object would
// have more than 16 KB of extended data. Empty values are values.
ZP_EXPORT int SetXdata(AcDbObjectId id, const wchar_t* key, CString value);
// The same on an open object. One that is open for read is upgraded for the write and downgraded again; one
// outside a drawing gets its key registered in the working drawing.
ZP_EXPORT int SetXdata(AcDbObject* object, const wchar_t* key, CString value);

// Non-zero if the object has the key; else 0, and value stays as it was.
ZP_EXPORT int GetXdata(AcDbObjectId id, const wchar_t* key, CString& value);
ZP_EXPORT int GetXdata(AcDbObject* object, const wchar_t* key, CString& value);

} // namespace ZP
