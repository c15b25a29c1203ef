// The entities that the host understands as curves: line, arc, circle, light-weight polyline; and the point.
// Coordinates of arcs, circles and polylines are in the system of their normal, as in drawing files; the
// accessors give world coordinates where they say so.
#pragma once

#include "host/db/AcDbEntity.h"
#include "host/ge/AcGePoint2d.h"

#include <vector>

class AcDbCurve : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbCurve);

 public:
  virtual bool isClosed() const { return false; }
  // World coordinates; eNotApplicable for a circle.
  virtual Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
  virtual Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;
};

class AcDbLine : public AcDbCurve {
  ACRX_DECLARE_MEMBERS(AcDbLine);

 public:
  AcDbLine() = default;
  AcDbLine(const AcGePoint3d& start, const AcGePoint3d& end) : m_start(start), m_end(end) {}
  AcGePoint3d startPoint() const { return m_start; }
  AcGePoint3d endPoint() const { return m_end; }
  Acad::ErrorStatus setStartPoint(const AcGePoint3d& point); // eInvalidInput for what is no number
  Acad::ErrorStatus setEndPoint(const AcGePoint3d& point);
  Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const override;
  Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const override;
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint3d m_start;
  AcGePoint3d m_end;
  AcGeVector3d m_normal{0, 0, 1};
  double m_thickness = 0;
};

class AcDbCircle : public AcDbCurve {
  ACRX_DECLARE_MEMBERS(AcDbCircle);

 public:
  AcDbCircle() = default;
  AcDbCircle(const AcGePoint3d& centre, const AcGeVector3d& normal, double radius);
  AcGePoint3d center() const; // world
  AcGeVector3d normal() const { return m_normal; }
  double radius() const { return m_radius; }
  Acad::ErrorStatus setCenter(const AcGePoint3d& centre);
  Acad::ErrorStatus setRadius(double radius); // above 0, eInvalidInput otherwise
  bool isClosed() const override { return true; }
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint3d m_center; // in the system of the normal
  AcGeVector3d m_normal{0, 0, 1};
  double m_radius = 1;
  double m_thickness = 0;
};

class AcDbArc : public AcDbCurve {
  ACRX_DECLARE_MEMBERS(AcDbArc);

 public:
  AcDbArc() = default;
  // Angles in radians, anticlockwise about the normal.
  AcDbArc(const AcGePoint3d& centre, const AcGeVector3d& normal, double radius, double startAngle,
          double endAngle);
  AcGePoint3d center() const; // world
  AcGeVector3d normal() const { return m_normal; }
  double radius() const { return m_radius; }
  double startAngle() const { return m_startAngle; }
  double endAngle() const { return m_endAngle; }
  Acad::ErrorStatus setCenter(const AcGePoint3d& centre);
  Acad::ErrorStatus setRadius(double radius);
  Acad::ErrorStatus setStartAngle(double angle);
  Acad::ErrorStatus setEndAngle(double angle);
  Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const override;
  Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const override;
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint3d m_center;
  AcGeVector3d m_normal{0, 0, 1};
  double m_radius = 1;
  double m_startAngle = 0;
  double m_endAngle = 0;
  double m_thickness = 0;
};

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
  Acad::ErrorStatus setClosed(bool closed);
  bool isClosed() const override { return (m_flags & 1) != 0; }
  double elevation() const { return m_elevation; }
  Acad::ErrorStatus setElevation(double elevation);
  AcGeVector3d normal() const { return m_normal; }
  Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const override;
  Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const override;
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
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

class AcDbPoint : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbPoint);

 public:
  AcDbPoint() = default;
  explicit AcDbPoint(const AcGePoint3d& position) : m_position(position) {}
  AcGePoint3d position() const { return m_position; }
  Acad::ErrorStatus setPosition(const AcGePoint3d& position);
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint3d m_position;
  AcGeVector3d m_normal{0, 0, 1};
};
