// Moving entities that can't be moved: what the host does not understand, and circles under uneven scales,
// goes into an anonymous block, and an insertion of that block is moved instead.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/db/AcadStatus.h"
#include "host/ge/AcGeMatrix3d.h"

namespace entity {

// A new anonymous block with a copy of the entity, its base point at origin. Null when it can't be made.
AcDbObjectId wrapInBlock(AcDbDatabase& database, const AcDbObjectId& entity, const AcGePoint3d& origin);

// Transforms an entity of the database, or replaces it by an insertion that is transformed.
// eCannotScaleNonUniformly when not even an insertion can follow the matrix.
Acad::ErrorStatus transformOrWrap(AcDbDatabase& database, const AcDbObjectId& entity,
                                  const AcGeMatrix3d& matrix);

} // namespace entity
