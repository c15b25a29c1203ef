#include "plugin/tools/crossings/JointList.h"

#include <algorithm>
#include <cmath>

#include "host/ge/CurveTolerance.h"

namespace crossings {

void JointList::Add(const AcGePoint3d& point) {
  ge::Box2d box;
  box.Add(AcGePoint2d(point.x, point.y));
  const SpatialIndex::Entry entry{box, m_joints.size()};
  const double reach = ge::CurveTolerance(std::max(std::fabs(point.x), std::fabs(point.y)));
  bool isKnown = false;
  m_places.visit(box.Grown(reach),
                 [&](std::size_t joint) { isKnown = isKnown || point.isEqualTo(m_joints[joint]); });
  if (isKnown) return;
  m_places.insert(entry);
  m_joints.push_back(point);
}

} // namespace crossings
