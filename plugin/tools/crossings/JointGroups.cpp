#include "plugin/tools/crossings/JointGroups.h"

#include <cmath>

#include "host/ge/Curve.h"
#include "plugin/base/Tolerance.h"
#include "plugin/pipes/attributes/Elevation.h"
#include "plugin/tools/crossings/PipeIndex.h"

namespace crossings {

namespace {

// Elevations up to a millimetre apart are one; 5.001 and 5 differ by a little more in binary numbers.
constexpr double kSameElevation = 0.001 + ZP::kTolerance;

constexpr double kLargestElevation = 999999.0;

} // namespace

void JointGroups::Take(const AcDbObjectId& id, double elevation) {
  const bool isSame = ZP::IsEqual(elevation, maxElevation, kSameElevation);
  if (!isSame && ZP::Greater(elevation, maxElevation)) {
    maxElevation = elevation;
    lower.append(upper);
    upper.removeAll();
    upper.append(id);
  } else if (isSame) {
    upper.append(id);
  } else {
    lower.append(id);
  }
  if (ZP::Less(elevation, minElevation)) minElevation = elevation;
}

double ElevationOf(const AcDbObjectId& id) {
  const double elevation = ZP::GetElevation(id);
  return std::fabs(elevation) <= kLargestElevation ? elevation : 0.0;
}

JointGroups GroupsAt(const AcGePoint3d& joint, const AcDbObjectIdArray& ids, const PipeIndex& index) {
  JointGroups groups;
  for (const int position : index.Near(joint)) {
    const AcDbObjectId& id = ids[position];
    const auto curve = GeometryOf(id);
    if (curve && PassesThrough(*curve, joint)) groups.Take(id, ElevationOf(id));
  }
  return groups;
}

} // namespace crossings
