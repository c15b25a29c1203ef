// What the commands that transform a selection show meanwhile: its entities where they would come to stand.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/ge/AcGeMatrix3d.h"

#include <functional>
#include <vector>

class AcGiWorldDraw;
class AcGePoint3d;

namespace commands {

// Draws the entities through the matrix that belongs to the cursor's place. At most so many of them that a
// front end keeps up with the mouse.
std::function<void(AcGiWorldDraw&, const AcGePoint3d&)>
PreviewThrough(std::vector<AcDbObjectId> ids, std::function<AcGeMatrix3d(const AcGePoint3d&)> matrixAt);
// The same through several matrices, for several copies.
std::function<void(AcGiWorldDraw&, const AcGePoint3d&)>
PreviewThroughAll(std::vector<AcDbObjectId> ids,
                  std::function<std::vector<AcGeMatrix3d>(const AcGePoint3d&)> matricesAt);

} // namespace commands
