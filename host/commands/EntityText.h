// What LIST tells about an entity: its kind, its properties, its geometry, its extended data, in Chinese.
#pragma once

#include "host/afx/CString.h"

class AcDbEntity;

namespace commands {

// "直线"; the record's own name for what the host only keeps.
CString EntityKind(const AcDbEntity& entity);
// Several lines, each ended.
CString EntityText(const AcDbEntity& entity);

} // namespace commands
