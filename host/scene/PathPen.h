// Draws a path in the coordinates of an entity, which may lie anywhere in space; what comes out is its
// picture in the scene's plane.
#pragma once

#include "host/ge/AcGeMatrix3d.h"
#include "host/scene/Path.h"

namespace scene {

class PathPen {
 public:
  explicit PathPen(const AcGeMatrix3d& toScene);
  PathPen(PathPen&&) = default;
  PathPen& operator=(PathPen&&) = default;
  ~PathPen();

  void move(const AcGePoint3d& p);
  void line(const AcGePoint3d& p);
  void curve(const AcGePoint3d& c1, const AcGePoint3d& c2, const AcGePoint3d& end, bool goesOn = false);
  void close() { m_path.close(); }
  // The ellipse centre + u cos(t) + v sin(t) from start over sweep (radians, either sense). It begins a part,
  // or goes on from the last point, which must then be where it begins.
  void arc(const AcGePoint3d& centre, const AcGeVector3d& u, const AcGeVector3d& v, double start,
           double sweep, bool begin = true);
  // From the last point, which from tells again, with a polyline's bulge, in the plane of the coordinates.
  void bulge(const AcGePoint3d& from, const AcGePoint3d& to, double bulge);

  // A path in the plane of the coordinates.
  void append(PathView path);

  AcGePoint2d map(const AcGePoint3d& p) const;
  const AcGeMatrix3d& matrix() const { return m_matrix; }
  PathView view() const { return m_path.view(); }
  Path& path() { return m_path; }
  bool isEmpty() const { return m_path.isEmpty(); }
  // A coordinate was beyond what can be drawn; the path is to be thrown away.
  bool isBroken() const;

 private:
  AcGeMatrix3d m_matrix;
  Path m_path;
};

} // namespace scene
