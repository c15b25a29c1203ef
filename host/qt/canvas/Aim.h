// Where a click would go: the cursor, drawn to a snap or to an axis of the prompt's base point.
#pragma once

#include "host/ed/ObjectSnap.h"

struct EdPromptState;

namespace desktop {

struct Aim {
  AcGePoint3d point;
  std::optional<ed::Snap> snap;
};

// Snaps and axes hold where the prompt takes points; elsewhere the aim is the cursor.
Aim TakeAim(const EdPromptState& prompt, const AcGePoint3d& cursor, std::span<const AcDbObjectId> near,
            double aperture);
// The prompt takes a click as a point.
bool WantsPoint(const EdPromptState& prompt);
// The coordinates as a line that reads back to the very same point.
CString PointLine(const AcGePoint3d& point);

} // namespace desktop
