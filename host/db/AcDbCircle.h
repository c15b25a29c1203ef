// A circle. Its centre is filed in the coordinate system of its normal; the accessors give world coordinates.
#pragma once

#include "host/db/AcDbCurve.h"

class AcDbCircle : public AcDbCurve {
  ACRX_DECLARE_MEMBERS(AcDbCircle);

 public:
  AcDbCircle() = default;
  AcDbCircle(const AcGePoint3d& centre, const AcGeVector3d& normal, double radius);
  AcGePoint3d center() const; // world
  AcGeVector3d normal() const { return m_normal; }
  double radius() const { return m_radius; }
  Acad::ErrorStatus setCenter(const AcGePoint3d& centre);
  Acad::ErrorStatus setRadius(double radius);              // above 0, eInvalidInput otherwise
  Acad::ErrorStatus setNormal(const AcGeVector3d& normal); // the world centre stays; eInvalidInput for zero
  bool isClosed() const override { return true; }
  Acad::ErrorStatus getCurve(ge::Curve& curve) const override;
  Acad::ErrorStatus setCurve(const ge::Curve& curve) override;
  void worldDraw(AcGiWorldDraw& draw) const override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint3d m_center; // in the system of the normal
  AcGeVector3d m_normal{0, 0, 1};
  double m_radius = 1;
  double m_thickness = 0;
};
