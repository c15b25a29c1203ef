// The tiled viewports of the screen. The host shows one, "*Active", and knows what part of the drawing it
// shows; everything else of the records is kept as it came.
#pragma once

#include "host/db/AcDbSymbolTable.h"
#include "host/ge/AcGePoint2d.h"

class AcDbViewportTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbViewportTableRecord);

 public:
  // The middle of the view, in the view's own plane.
  AcGePoint2d centerPoint() const { return m_centre; }
  Acad::ErrorStatus setCenterPoint(const AcGePoint2d& centre);
  // Drawing units from its lower to its upper edge, and from its left to its right one.
  double height() const { return m_height; }
  double width() const { return m_height * m_aspect; }
  Acad::ErrorStatus setHeight(double height); // above 0, eInvalidInput otherwise; the width grows with it

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint2d m_centre;
  double m_height = 1;
  double m_aspect = 1;
};

ZP_SYMBOL_TABLE(AcDbViewport);
