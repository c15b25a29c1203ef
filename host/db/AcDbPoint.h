// A point.
#pragma once

#include "host/db/AcDbEntity.h"

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
