// An insertion of a block, with its attributes as sub-entities.
#pragma once

#include "host/db/AcDbEntity.h"

class AcDbAttribute;

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
  AcGeVector3d normal() const { return m_normal; }
  Acad::ErrorStatus setNormal(const AcGeVector3d& normal); // the world position stays; eInvalidInput for zero
  // eNotThatKindOfClass for what is no block; eSelfReference for a block that the reference stands in.
  Acad::ErrorStatus setBlockTableRecord(const AcDbObjectId& block);
  // Rows and columns of copies; 1 and 1 for a plain insertion. Spacings in drawing units.
  int rows() const { return m_rows; }
  int columns() const { return m_columns; }

  // Attributes. One of a reference that is in a drawing must not be in one yet; it stays open for write.
  Acad::ErrorStatus appendAttribute(AcDbAttribute* attribute);
  Acad::ErrorStatus appendAttribute(AcDbObjectId& id, AcDbAttribute* attribute);
  // Those in the drawing that are not erased.
  std::vector<AcDbObjectId> attributes() const;

  // The contents of the block as entities of their own, with the layer and properties that they were drawn
  // with. Insertions inside stay insertions, attribute definitions come out, attributes don't. What can't
  // follow the reference's scales, or what the host can't move, comes as an insertion of an anonymous block
  // with that one entity in it. eNullObjectId without a block, eCannotExplodeEntity for more than 10,000
  // copies, and for a block that contains itself.
  Acad::ErrorStatus explode(std::vector<AcDbEntity*>& parts) const override;

  // From the block's coordinates to the world's, for the first row and column.
  AcGeMatrix3d blockTransform() const;
  // Position, normal, rotation and scales of a matrix whose axes are at right angles; the block's base point
  // stays out of it. eCannotScaleNonUniformly for another matrix.
  Acad::ErrorStatus setBlockTransform(const AcGeMatrix3d& matrix);
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  std::vector<AcGeMatrix3d> copyTransforms() const;
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
