// A line of text.
#pragma once

#include "host/db/AcDbEntity.h"

#include <optional>

class AcDbText : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbText);

 public:
  AcDbText() = default;
  // World position, drawing units, radians. A null style is the drawing's Standard.
  AcDbText(const AcGePoint3d& position, const CString& text, const AcDbObjectId& style = {},
           double height = 2.5, double rotation = 0)
      : m_position(position), m_height(height), m_rotation(rotation), m_style(style), m_text(text),
        m_textChanged(true) {}
  const CString& textString() const { return m_text; }
  Acad::ErrorStatus setTextString(const CString& text);
  AcGePoint3d position() const; // world
  Acad::ErrorStatus setPosition(const AcGePoint3d& position);
  double height() const { return m_height; }
  Acad::ErrorStatus setHeight(double height);    // above 0, eInvalidInput otherwise
  double rotation() const { return m_rotation; } // radians
  Acad::ErrorStatus setRotation(double angle);
  double widthFactor() const { return m_widthFactor; }
  Acad::ErrorStatus setWidthFactor(double factor); // above 0, eInvalidInput otherwise
  double oblique() const { return m_oblique; }     // radians
  Acad::ErrorStatus setOblique(double angle);
  AcGeVector3d normal() const { return m_normal; }
  // The second point of aligned text, which is where it hangs; nothing for text that begins at its position.
  std::optional<AcGePoint3d> alignmentPoint() const; // world
  // The same two in the system of the normal, as the drawing has them.
  const AcGePoint3d& ownPosition() const { return m_position; }
  const std::optional<AcGePoint3d>& ownAlignmentPoint() const { return m_alignment; }
  AcDbObjectId textStyle() const { return m_style; }
  // As groups 72 and 73 count them (74 of attributes): 0 is left and on the base line.
  int horizontalMode() const { return m_horizontal; }
  int verticalMode() const { return m_vertical; }
  bool isBackward() const { return (m_generation & 2) != 0; }
  bool isUpsideDown() const { return (m_generation & 4) != 0; }
  Acad::ErrorStatus setTextStyle(const AcDbObjectId& style);
  void worldDraw(AcGiWorldDraw& draw) const override;
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;
  // Whether a record of the class ends with its marker a second time.
  virtual bool hasClosingMarker() const { return true; }
  // The group of the vertical mode.
  virtual int verticalCode() const { return 73; }
  void drawText(AcGiWorldDraw& draw, const CString& text) const;
  // Goes where any matrix that is not singular puts it. Under uneven scales the letters stay upright, and the
  // base line and the height are scaled each by itself.
  Acad::ErrorStatus followUnevenly(const AcGeMatrix3d& matrix);

 private:
  AcGePoint3d m_position; // in the system of the normal
  std::optional<AcGePoint3d> m_alignment;
  AcGeVector3d m_normal{0, 0, 1};
  double m_height = 2.5;
  double m_rotation = 0;
  double m_widthFactor = 1;
  double m_oblique = 0;
  AcDbObjectId m_style;
  CString m_text;
  bool m_textChanged = false; // else it stays in the record as it stands there
  // What nobody here changes is read alone.
  int m_horizontal = 0;
  int m_vertical = 0;
  int m_generation = 0;
};
