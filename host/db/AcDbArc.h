// A circular arc, anticlockwise about its normal. Centre and angles are filed in the coordinate system of the
// normal; the accessors of points give world coordinates.
#pragma once

#include "host/db/AcDbCurve.h"

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
  Acad::ErrorStatus setNormal(const AcGeVector3d& normal); // the world centre stays; eInvalidInput for zero
  bool isClosed() const override;                          // a full turn
  Acad::ErrorStatus getCurve(ge::Curve& curve) const override;
  Acad::ErrorStatus setCurve(const ge::Curve& curve) override;
  void worldDraw(AcGiWorldDraw& draw) const override;

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
