// A straight line between two points in world coordinates.
#pragma once

#include "host/db/AcDbCurve.h"

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
  Acad::ErrorStatus getCurve(ge::Curve& curve) const override;
  Acad::ErrorStatus setCurve(const ge::Curve& curve) override;
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
