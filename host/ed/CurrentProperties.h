// What a new entity is drawn with: the drawing's current layer, colour, linetype, linetype scale and line
// weight.
#pragma once

#include "host/db/AcadStatus.h"

class AcDbDatabase;
class AcDbEntity;

namespace ed {

// For an entity that is not in a drawing yet, or is open for write. The first failure; what it concerns stays
// as it was.
Acad::ErrorStatus ApplyCurrentProperties(AcDbEntity& entity, const AcDbDatabase& database);

} // namespace ed
