// Text styles: a font and how it is drawn.
#pragma once

#include "host/db/AcDbSymbolTable.h"

class AcDbTextStyleTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbTextStyleTableRecord);

 public:
  double textSize() const { return m_textSize; } // 0: not fixed
  double xScale() const { return m_xScale; }
  const CString& fileName() const { return m_fileName; }
  const CString& bigFontFileName() const { return m_bigFont; }
  Acad::ErrorStatus setTextSize(double size);
  Acad::ErrorStatus setXScale(double scale);
  Acad::ErrorStatus setFileName(const CString& name);
  Acad::ErrorStatus setBigFontFileName(const CString& name);

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  double m_textSize = 0;
  double m_xScale = 1;
  CString m_fileName = L"txt";
  CString m_bigFont;
};

ZP_SYMBOL_TABLE(AcDbTextStyle);
