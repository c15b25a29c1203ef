// Where a point prompt snaps to near the cursor, as the system variable OSMODE asks: ends, middles, centres,
// points, quadrants, intersections, the nearest point.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/ge/AcGePoint3d.h"

#include <optional>
#include <span>

namespace ed {

// Bits of OSMODE.
inline constexpr long kSnapEnd = 1;
inline constexpr long kSnapMiddle = 2;
inline constexpr long kSnapCentre = 4;
inline constexpr long kSnapPoint = 8;
inline constexpr long kSnapQuadrant = 16;
inline constexpr long kSnapIntersection = 32;
inline constexpr long kSnapNearest = 512;
inline constexpr long kSnapOff = 16384; // none of the others holds

struct Snap {
  long kind = 0; // one of the bits
  AcGePoint3d point;
};

// The place nearest to the cursor that a mode names and that lies within the aperture (drawing units); the
// nearest point only where there is nothing else. The centre also serves when the cursor is on its arc.
std::optional<Snap> SnapTo(std::span<const AcDbObjectId> entities, const AcGePoint3d& cursor, double aperture,
                           long modes);
// What a snap is called.
const wchar_t* SnapName(long kind);

} // namespace ed
