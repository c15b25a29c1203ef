// The head of a record: handle, owner, and the groups that tie the object to others. What an object is in its
// drawing, as against what it is by itself.
#pragma once

#include "host/db/AcDbHandle.h"
#include "host/db/DxfRecord.h"

namespace dxf {

// The group code under which a record keeps its handle: 5, for dimension styles 105.
int handleCodeOf(std::string_view recordType);
// Without handle, owner, reactors and extension dictionary.
DxfRecord withoutHead(const DxfRecord& record);
// withoutHead, and with the handle and owner given. A null owner leaves it away.
DxfRecord withHead(const DxfRecord& record, AcDbHandle handle, AcDbHandle owner);
// The owner that the record names, null where it names none.
AcDbHandle ownerIn(DxfTags tags);

} // namespace dxf
