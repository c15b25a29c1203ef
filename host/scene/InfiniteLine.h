// Cuts rays and construction lines to what a window shows.
#pragma once

#include "host/ge/AcGePoint2d.h"
#include "host/ge/Box2d.h"

#include <optional>
#include <utility>

namespace scene {

// The stretch within the box of the line through two points, or of the ray that begins in the first.
std::optional<std::pair<AcGePoint2d, AcGePoint2d>>
CutToBox(const AcGePoint2d& from, const AcGePoint2d& through, bool isRay, const ge::Box2d& box);

} // namespace scene
