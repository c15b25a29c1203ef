#include "plugin/tools/crossings/EndNodes.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace crossings {

namespace {

auto Key(const AcGePoint3d& p) {
  return std::tie(p.x, p.y, p.z);
}

bool IsBefore(const AcGePoint3d& a, const AcGePoint3d& b) {
  return Key(a) < Key(b);
}

} // namespace

EndNodes::EndNodes(std::vector<AcGePoint3d> points) : m_points(std::move(points)) {
  std::sort(m_points.begin(), m_points.end(), IsBefore);
  const auto isSame = [](const AcGePoint3d& a, const AcGePoint3d& b) { return Key(a) == Key(b); };
  m_points.erase(std::unique(m_points.begin(), m_points.end(), isSame), m_points.end());
}

int EndNodes::Find(const AcGePoint3d& point) const {
  const auto found = std::lower_bound(m_points.begin(), m_points.end(), point, IsBefore);
  if (found == m_points.end() || Key(*found) != Key(point)) return -1;
  return static_cast<int>(found - m_points.begin());
}

} // namespace crossings
