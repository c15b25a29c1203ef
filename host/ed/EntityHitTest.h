// What a pick or a selection window meets, asked of what an entity draws. The plane is the world's xy plane.
#pragma once

#include "host/db/TransformingDraw.h"
#include "host/ge/Box2d.h"

namespace ge {
struct PlanarArc;
}

// Takes what entities draw as segments, arcs, points and text boxes of the plane. Contents of insertions that
// are invisible, or whose layer is off or frozen, are left out.
class PlanarDraw : public TransformingDraw {
 public:
  bool beginEntity(const AcDbEntity& entity) override;
  void circularArc(const AcGePoint3d& centre, double radius, const AcGeVector3d& normal,
                   const AcGeVector3d& xAxis, double startAngle, double sweep) override;
  void pushModelTransform(const AcGeMatrix3d& matrix) override;
  void popModelTransform() override;

 protected:
  virtual void segment(const AcGePoint2d& a, const AcGePoint2d& b) = 0;
  virtual void arc(const ge::PlanarArc& arc) = 0;
  virtual void dot(const AcGePoint2d& at) = 0;
  // A filled parallelogram: what a text covers.
  virtual void area(std::span<const AcGePoint2d> corners) = 0;

 private:
  void worldPoint(const AcGePoint3d& at) override;
  void worldPolyline(std::span<const AcGePoint3d> points) override;
  void worldText(const AcGePoint3d& at, const AcGeVector3d& along, const AcGeVector3d& up,
                 const CString& text) override;
  int m_transforms = 0;
};

// Whether a window takes an entity: wholly inside, or, for a crossing window, touched.
class WindowHitTest : public PlanarDraw {
 public:
  explicit WindowHitTest(const ge::Box2d& window, bool crossing) : m_window(window), m_crossing(crossing) {}
  bool takes(const AcDbEntity& entity);

 protected:
  void segment(const AcGePoint2d& a, const AcGePoint2d& b) override;
  void arc(const ge::PlanarArc& arc) override;
  void dot(const AcGePoint2d& at) override;
  void area(std::span<const AcGePoint2d> corners) override;

 private:
  // The outcome can't change any more.
  bool isDecided() const { return m_crossing ? m_touched : m_outside; }
  ge::Box2d m_window;
  bool m_crossing;
  bool m_touched = false;
  bool m_outside = false;
};

// How far entities are from a point, and the box around all that was asked about.
class DistanceHitTest : public PlanarDraw {
 public:
  explicit DistanceHitTest(const AcGePoint2d& point) : m_point(point) {}
  // Infinite for an entity that draws nothing.
  double distanceTo(const AcDbEntity& entity);
  const ge::Box2d& extents() const { return m_extents; }

 protected:
  void segment(const AcGePoint2d& a, const AcGePoint2d& b) override;
  void arc(const ge::PlanarArc& arc) override;
  void dot(const AcGePoint2d& at) override;
  void area(std::span<const AcGePoint2d> corners) override;

 private:
  void nearer(double distance);
  AcGePoint2d m_point;
  double m_nearest = 0;
  ge::Box2d m_extents;
};
