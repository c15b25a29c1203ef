// What stands in a drawing in place of an external reference that could not be read: its path as a text.
#pragma once

#include "host/afx/CString.h"

#include <optional>

class AcDbBlockReference;

namespace entity {

struct MissingReference {
  CString text;
  double height = 0; // drawing units, whatever scale the reference has
};

// Nothing for a reference that shows something, and for one that was unloaded on purpose.
std::optional<MissingReference> missingReferenceOf(const AcDbBlockReference& reference);

} // namespace entity
