// Collects the box around what is drawn into it.
#pragma once

#include "host/db/AcDbExtents.h"
#include "host/db/TransformingDraw.h"

class ExtentsDraw : public TransformingDraw {
 public:
  const AcDbExtents& extents() const { return m_extents; }

 protected:
  void worldPoint(const AcGePoint3d& at) override { m_extents.addPoint(at); }
  void worldPolyline(std::span<const AcGePoint3d> points) override;
  void worldText(const AcGePoint3d& at, const AcGeVector3d& along, const AcGeVector3d& up,
                 const CString& text) override;

 private:
  AcDbExtents m_extents;
};
