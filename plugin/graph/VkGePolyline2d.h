// A path in the plane: vertices, each with the signed central angle of the segment that begins there.
#pragma once

#include <vector>

#include "host/ge/AcGePoint3d.h"
#include "host/ge/Curve.h"
#include "plugin/base/ZpExport.h"

class ZP_EXPORT VkGePolyline2d {
 public:
  // Appends a vertex, of which the height is dropped. centralAngle is that of the segment to the next vertex,
  // in radians, positive anticlockwise, between -2 pi and 2 pi; 0 is a straight segment.
  void AppendVertex(const AcGePoint3d& point, double centralAngle);
  // Leaves one of the vertices that follow one another at the same place: the last, with its angle.
  void CleanPolyDumpPoint();

  int GetVertexCount() const { return static_cast<int>(m_vertices.size()); }
  // An index that there is none of raises CInvalidArgException.
  AcGePoint2d GetVertex(int index) const;
  double GetCentralAngle(int index) const;

  // Drawing units; 0 for less than two vertices.
  double GetLength() const;
  // Square drawing units, never negative; the end is joined to the start by a straight line. Loops of a path
  // that crosses itself count by their own sense.
  double GetArea() const;

 private:
  struct Vertex {
    AcGePoint2d point;
    double centralAngle;
  };
  const Vertex& At(int index) const;
  ge::Curve AsCurve() const;

  std::vector<Vertex> m_vertices;
};
