// When a drawing was last changed.
#pragma once

#include "host/afx/CString.h"

class AcDbDatabase;

namespace commands {

// "2024-05-01T12:00:00Z" by the drawing's own record ($TDUPDATE); empty where it has none.
CString DrawingDate(const AcDbDatabase& database);

} // namespace commands
