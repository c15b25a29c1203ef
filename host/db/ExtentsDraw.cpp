#include "host/db/ExtentsDraw.h"

void ExtentsDraw::worldPolyline(std::span<const AcGePoint3d> points) {
  for (const AcGePoint3d& point : points) m_extents.addPoint(point);
}

void ExtentsDraw::worldText(const AcGePoint3d& at, const AcGeVector3d& along, const AcGeVector3d& up,
                            const CString&) {
  m_extents.addPoint(at);
  m_extents.addPoint(at + along);
  m_extents.addPoint(at + up);
  m_extents.addPoint(at + along + up);
}
