// An insertion of a block, with its attributes as sub-entities.
#pragma once

#include "host/db/AcDbEntity.h"

class AcDbBlockReference : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbBlockReference);

 public:
  AcDbBlockReference() = default;
  AcDbBlockReference(const AcGePoint3d& position, const AcDbObjectId& block)
      : m_position(position), m_block(block) {}
  AcDbObjectId blockTableRecord() const { return m_block; }
  AcGePoint3d position() const; // world
  Acad::ErrorStatus setPosition(const AcGePoint3d& position);
  double rotation() const { return m_rotation; } // radians
  Acad::ErrorStatus setRotation(double angle);
  AcGeVector3d scaleFactors() const { return m_scale; }
  Acad::ErrorStatus setScaleFactors(const AcGeVector3d& scale); // none may be 0, eInvalidInput
  // From the block's coordinates to the world's, for the first row and column.
  AcGeMatrix3d blockTransform() const;
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint3d m_position; // in the system of the normal
  AcGeVector3d m_normal{0, 0, 1};
  AcGeVector3d m_scale{1, 1, 1};
  double m_rotation = 0;
  AcDbObjectId m_block;
  int m_columns = 1;
  int m_rows = 1;
  double m_columnSpacing = 0;
  double m_rowSpacing = 0;
};
