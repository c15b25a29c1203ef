// Data of any group codes by key on objects of a drawing: xrecords in the object's extension dictionary,
// which any CAD program carries along. For single texts use Xdata.h.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/db/resbuf.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// Non-zero and the data as a new chain that the caller releases with acutRelRb. 0, with chain as it was, when
// the object or its record can't be opened for read, when there is no xrecord under the key, and when that is
// empty. Keys compare without case.
ZP_EXPORT int GetXRecord(AcDbObjectId id, CString key, resbuf*& chain);

// Files the chain, which stays the caller's, under the key, in place of what stood there; the object gets an
// extension dictionary where it has none. Non-zero on success; 0, with nothing changed, when the object or
// its record can't be opened for write (on a locked layer, for one), for an empty key, and for a chain with a
// group code outside 1 to 369. Binary chunks above 127 bytes are filed as several.
ZP_EXPORT int SetXRecord(AcDbObjectId id, CString key, const resbuf* chain);

} // namespace ZP
