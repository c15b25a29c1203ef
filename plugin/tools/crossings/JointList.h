// Joints in the order in which they were found, without those that equal an earlier one.
#pragma once

#include <vector>

#include "host/db/SpatialIndex.h"
#include "host/ge/AcGePoint3d.h"

namespace crossings {

class JointList {
 public:
  void Add(const AcGePoint3d& point);
  std::vector<AcGePoint3d> Take() { return std::move(m_joints); }

 private:
  std::vector<AcGePoint3d> m_joints;
  SpatialIndex m_places; // keys are indexes of joints
};

} // namespace crossings
