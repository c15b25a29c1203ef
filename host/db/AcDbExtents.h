// A box along the axes, empty at first.
#pragma once

#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/AcGePoint3d.h"

#include <algorithm>
#include <cmath>
#include <limits>

class AcDbExtents {
 public:
  AcDbExtents() = default;
  AcDbExtents(const AcGePoint3d& lower, const AcGePoint3d& upper) : m_min(lower), m_max(upper) {}
  const AcGePoint3d& minPoint() const { return m_min; }
  const AcGePoint3d& maxPoint() const { return m_max; }
  bool isEmpty() const { return !(m_min.x <= m_max.x); }
  // Points that are no numbers are passed over.
  void addPoint(const AcGePoint3d& p) {
    if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z)) return;
    m_min = AcGePoint3d(std::min(m_min.x, p.x), std::min(m_min.y, p.y), std::min(m_min.z, p.z));
    m_max = AcGePoint3d(std::max(m_max.x, p.x), std::max(m_max.y, p.y), std::max(m_max.z, p.z));
  }
  void addExt(const AcDbExtents& other) {
    if (other.isEmpty()) return;
    addPoint(other.m_min);
    addPoint(other.m_max);
  }

 private:
  static constexpr double kInfinite = std::numeric_limits<double>::infinity();
  AcGePoint3d m_min{kInfinite, kInfinite, kInfinite};
  AcGePoint3d m_max{-kInfinite, -kInfinite, -kInfinite};
};
