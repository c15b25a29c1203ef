// A light-weight polyline: vertices in the plane of its normal, straight or with bulges (the tangent of a
// quarter of the arc's angle, positive anticlockwise).
#pragma once

#include "host/db/AcDbCurve.h"
#include "host/ge/AcGePoint2d.h"

#include <vector>

class AcDbPolyline : public AcDbCurve {
  ACRX_DECLARE_MEMBERS(AcDbPolyline);

 public:
  unsigned int numVerts() const { return static_cast<unsigned int>(m_vertices.size()); }
  // eOutOfRange for an index that there is none of.
  Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint2d& point) const; // in the system of the normal
  Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint3d& point) const; // world
  Acad::ErrorStatus getBulgeAt(unsigned int index, double& bulge) const;
  Acad::ErrorStatus getWidthsAt(unsigned int index, double& start, double& end) const;
  Acad::ErrorStatus addVertexAt(unsigned int index, const AcGePoint2d& point, double bulge = 0,
                                double startWidth = 0, double endWidth = 0);
  Acad::ErrorStatus removeVertexAt(unsigned int index);
  Acad::ErrorStatus setPointAt(unsigned int index, const AcGePoint2d& point);
  Acad::ErrorStatus setBulgeAt(unsigned int index, double bulge);
  // All segments get this width, in drawing units. A negative width is taken as it is given.
  Acad::ErrorStatus setConstantWidth(double width);
  // eInvalidInput when the segments differ in width.
  Acad::ErrorStatus getConstantWidth(double& width) const;
  // Whether a linetype runs on through the vertices.
  bool hasPlinegen() const { return (m_flags & 128) != 0; }
  Acad::ErrorStatus setClosed(bool closed);
  bool isClosed() const override { return (m_flags & 1) != 0; }
  double elevation() const { return m_elevation; }
  Acad::ErrorStatus setElevation(double elevation);
  AcGeVector3d normal() const { return m_normal; }
  Acad::ErrorStatus setNormal(const AcGeVector3d& normal); // vertices keep their coordinates in its system
  Acad::ErrorStatus setWidthsAt(unsigned int index, double start, double end);
  // Room for that many vertices ahead; none is added.
  void reserveVertices(unsigned int count) { m_vertices.reserve(count); }
  // A segment's kind; the one behind the last vertex exists when closed.
  enum SegType { kLine, kArc, kCoincident, kPoint, kEmpty };
  SegType segType(unsigned int index) const;
  bool hasBulges() const;
  bool hasWidth() const;
  Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const override;
  Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const override;
  Acad::ErrorStatus getCurve(ge::Curve& curve) const override;
  Acad::ErrorStatus setCurve(const ge::Curve& curve) override;
  Acad::ErrorStatus reverseCurve() override;
  // Into lines and arcs; the caller owns them.
  Acad::ErrorStatus explode(std::vector<AcDbEntity*>& parts) const override;
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint3d worldVertex(std::size_t index) const;
  std::size_t segmentCount() const;
  struct Vertex {
    AcGePoint2d point;
    double bulge = 0;
    double startWidth = 0;
    double endWidth = 0;
    int id = 0; // of group 91
  };
  std::vector<Vertex> m_vertices;
  AcGeVector3d m_normal{0, 0, 1};
  double m_elevation = 0;
  double m_thickness = 0;
  double m_constantWidth = 0;
  int m_flags = 0;
  bool m_verticesChanged = false;
};
