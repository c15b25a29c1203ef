// A drawing target that brings everything to world coordinates: matrices of insertions are applied, arcs come
// as chords (within 1/1000 of their radius, with their extreme points exact), texts as the box that they
// fill. For picking, extents and pictures; who needs true arcs implements AcGiWorldDraw itself.
#pragma once

#include "host/db/AcGiWorldDraw.h"

#include <vector>

class TransformingDraw : public AcGiWorldDraw {
 public:
  void point(const AcGePoint3d& at) override;
  void polyline(std::span<const AcGePoint3d> points) override;
  void circularArc(const AcGePoint3d& centre, double radius, const AcGeVector3d& normal,
                   const AcGeVector3d& xAxis, double startAngle, double sweep) override;
  void text(const AcGePoint3d& at, const AcGeVector3d& normal, const AcGeVector3d& direction, double height,
            double widthFactor, const CString& text) override;
  void pushModelTransform(const AcGeMatrix3d& matrix) override;
  void popModelTransform() override;

  // Width of a text of this height: full-width characters are as wide as they are high, others 0.7 of it.
  static double textWidth(const CString& text, double height, double widthFactor);

 protected:
  virtual void worldPoint(const AcGePoint3d& at) = 0;
  virtual void worldPolyline(std::span<const AcGePoint3d> points) = 0;
  // along reaches over the text's width, up over its height.
  virtual void worldText(const AcGePoint3d& at, const AcGeVector3d& along, const AcGeVector3d& up,
                         const CString& text) = 0;

 private:
  std::vector<AcGeMatrix3d> m_matrices; // each holds all before it
  std::vector<AcGePoint3d> m_points;
};
