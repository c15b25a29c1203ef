// Which of the pipes at a joint lie above, and which below.
#pragma once

#include <vector>

#include "host/ge/AcGePoint3d.h"
#include "plugin/graph/AcArray.h"

namespace crossings {

class PipeIndex;

struct JointGroups {
  AcDbObjectIdArray upper; // all at the highest elevation
  AcDbObjectIdArray lower;
  double maxElevation = -999999.0;
  double minElevation = 999999.0;

  // Pipes come in the order of the list under work. A higher one sends all that were the highest down.
  void Take(const AcDbObjectId& id, double elevation);
};

// An elevation that is no number, or one beyond the limits above, counts as none, which is 0.
double ElevationOf(const AcDbObjectId& id);

// The pipes that pass the joint as they are now.
JointGroups GroupsAt(const AcGePoint3d& joint, const AcDbObjectIdArray& ids, const PipeIndex& index);

} // namespace crossings
