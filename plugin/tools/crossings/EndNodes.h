// The ends of the curves under work, each point once.
#pragma once

#include <vector>

#include "host/ge/AcGePoint3d.h"

namespace crossings {

class EndNodes {
 public:
  // Points are one only when they are the very same.
  explicit EndNodes(std::vector<AcGePoint3d> points);

  int Count() const { return static_cast<int>(m_points.size()); }
  const AcGePoint3d& Point(int node) const { return m_points[static_cast<std::size_t>(node)]; }
  // -1 for a point that is no end.
  int Find(const AcGePoint3d& point) const;

 private:
  std::vector<AcGePoint3d> m_points; // by x, y and z
};

} // namespace crossings
