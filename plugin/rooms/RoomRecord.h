// The record that the load calculation files with a room's entity: the memory image of a tree of parameters,
// in binary chunks of an xrecord. docs/formats/rooms.md tells the form.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

class CTQRoom;

namespace ZP {

// Reads the record of an entity of the drawing, of whatever class, under a write lock on the current
// document. 1 when there is one. 0 without a word for an id that is none and for null; 0 and a line at the
// command line where there is no record. A record that is damaged, or of another version, leaves the room as
// it was; that is told to the message log, and the result is 1 all the same, since siblings take 0 for "not
// calculated yet".
ZP_EXPORT int GetTQRoom(const AcDbObjectId& id, CTQRoom* room);

// Files the record, in place of the one that is there. 1 on success; 0 for null and for an entity that can't
// be opened for write.
ZP_EXPORT int SetTQRoom(const AcDbObjectId& id, const CTQRoom* room);

} // namespace ZP
