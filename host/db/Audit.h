// Looks a drawing over for what other programs would reject or misread, and mends what can be mended without
// a guess. What reading has mended already is not looked for again.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"

#include <functional>
#include <vector>

enum class AuditCheck {
  handleSeed,       // the next free handle is not above all that are taken
  owner,            // an object names another owner than the one that has it
  markers,          // subclass markers are missing or in another order
  rootDictionary,   // there is no root dictionary
  application,      // extended data of an application that is not registered
  sequenceEnd,      // a run of attributes or vertices without its end
  undefinedName,    // a layer, linetype, style or block that is named and not defined
  blockCycle,       // a block contains itself
  danglingEntry,    // an entry of a dictionary whose object is not there
  danglingPointer,  // a pointer that must lead somewhere and does not
  extendedDataForm, // braces that don't pair, texts or data longer than files may hold
  value,            // a value that no file may hold
};

struct AuditFinding {
  AuditCheck check;
  AcDbObjectId object; // null where it belongs to none
  CString text;        // a sentence for the user
  bool repaired = false;
};

// With repair every finding that can be is repaired, as one would by hand: undo takes it back. Without it the
// drawing stays as it is. A second audit finds what the first could not repair, and nothing else.
// progress is told how much is done, 0 to 1; giving false ends the audit with what was found and repaired by
// then.
std::vector<AuditFinding> acdbAudit(AcDbDatabase& database, bool repair,
                                    const std::function<bool(double)>& progress = {});
