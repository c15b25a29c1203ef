// A line of text.
#pragma once

#include "host/db/AcDbEntity.h"

#include <optional>

class AcDbText : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbText);

 public:
  CString textString() const;
  Acad::ErrorStatus setTextString(const CString& text);
  AcGePoint3d position() const; // world
  Acad::ErrorStatus setPosition(const AcGePoint3d& position);
  double height() const { return m_height; }
  Acad::ErrorStatus setHeight(double height);    // above 0, eInvalidInput otherwise
  double rotation() const { return m_rotation; } // radians
  Acad::ErrorStatus setRotation(double angle);
  double widthFactor() const { return m_widthFactor; }
  Acad::ErrorStatus setWidthFactor(double factor); // above 0, eInvalidInput otherwise
  AcDbObjectId textStyle() const { return m_style; }
  Acad::ErrorStatus setTextStyle(const AcDbObjectId& style);
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint3d m_position; // in the system of the normal
  std::optional<AcGePoint3d> m_alignment;
  AcGeVector3d m_normal{0, 0, 1};
  double m_height = 2.5;
  double m_rotation = 0;
  double m_widthFactor = 1;
  double m_oblique = 0;
  AcDbObjectId m_style;
  std::optional<CString> m_newText; // the text stays in the record until it is changed
};
