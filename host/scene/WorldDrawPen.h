// Lets entities of plug-ins, which know only how to draw themselves, draw into a scene. The traits begin as
// the entity's own properties; what it sets holds for what it draws next.
#pragma once

#include "host/db/AcGiWorldDraw.h"
#include "host/scene/Look.h"

#include <optional>
#include <vector>

namespace scene {

class Pen;

class WorldDrawPen : public AcGiWorldDraw {
 public:
  explicit WorldDrawPen(Pen& pen);
  // Lets the pen's entity draw. Code of a plug-in runs here: what it throws ends its drawing and is told.
  void entity();
  bool isEmpty() const { return m_isEmpty; }

  // An entity of the drawing within the one that draws is drawn as it would be by itself.
  bool beginEntity(const AcDbEntity& entity) override;
  void endEntity(const AcDbEntity& entity) override;
  AcGiSubEntityTraits& subEntityTraits() override { return m_traits; }
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
  bool takeTraits();

  Pen& m_pen;
  Look m_ownLook;
  AcGiSubEntityTraits m_ownTraits;
  AcGiSubEntityTraits m_traits;
  std::vector<AcGiSubEntityTraits> m_outerTraits; // of entities that are drawn within
  std::vector<AcGeMatrix3d> m_matrices;           // each holds all before it
  bool m_isEmpty = true;
};

} // namespace scene
