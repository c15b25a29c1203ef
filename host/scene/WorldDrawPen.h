// Lets entities of plug-ins, which know only how to draw themselves, draw into a scene.
#pragma once

#include "host/db/AcGiWorldDraw.h"

#include <vector>

namespace scene {

class Pen;

class WorldDrawPen : public AcGiWorldDraw {
 public:
  explicit WorldDrawPen(Pen& pen) : m_pen(pen) {}
  bool isEmpty() const { return m_isEmpty; }

  void point(const AcGePoint3d& at) override;
  void polyline(std::span<const AcGePoint3d> points) override;
  void circularArc(const AcGePoint3d& centre, double radius, const AcGeVector3d& normal,
                   const AcGeVector3d& xAxis, double startAngle, double sweep) override;
  void text(const AcGePoint3d& at, const AcGeVector3d& normal, const AcGeVector3d& direction, double height,
            double widthFactor, const CString& text) override;
  void pushModelTransform(const AcGeMatrix3d& matrix) override;
  void popModelTransform() override;

 private:
  AcGeMatrix3d matrix() const { return m_matrices.empty() ? AcGeMatrix3d() : m_matrices.back(); }

  Pen& m_pen;
  std::vector<AcGeMatrix3d> m_matrices; // each holds all before it
  bool m_isEmpty = true;
};

} // namespace scene
