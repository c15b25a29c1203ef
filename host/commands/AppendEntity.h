// How drawing commands put what they made into the drawing.
#pragma once

#include "host/db/AcDbObjectId.h"

#include <memory>

class AcDbEntity;

namespace commands {

// With the current layer, colour, linetype and weight, into the current space. A null id, with the reason
// told to the user, when that can't be.
AcDbObjectId AppendEntity(std::unique_ptr<AcDbEntity> entity);

} // namespace commands
