// The places where pipes meet: an end of one on an end of another, or on its way. Where two pipes merely
// cross there is no joint.
#pragma once

#include <vector>

#include "host/ge/AcGePoint3d.h"
#include "plugin/graph/AcArray.h"

namespace crossings {

// Each joint once, in the order in which comparing each curve with all that follow it would come upon them:
// two curves give the start of the first where the second has an end there, else the end of the first where
// the second has one there, else those of their common points that are an end of either. Time grows with the
// number of curves and of those that touch, not with all pairs.
std::vector<AcGePoint3d> FindJoints(const AcDbObjectIdArray& ids);

} // namespace crossings
