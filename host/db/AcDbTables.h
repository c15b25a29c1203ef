// The symbol tables beside layers and blocks: linetypes, text styles, registered applications, and those
// whose entries the host keeps as they came (dimension styles, views, coordinate systems, viewports).
#pragma once

#include "host/db/AcDbSymbolTable.h"

class AcDbLinetypeTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbLinetypeTableRecord);

 public:
  struct Dash {
    double length = 0; // drawing units; positive a dash, negative a gap, 0 a dot
  };
  const CString& comments() const { return m_comments; }
  double patternLength() const;
  const std::vector<Dash>& dashes() const { return m_dashes; }
  Acad::ErrorStatus setComments(const CString& comments);
  Acad::ErrorStatus setDashes(std::vector<Dash> dashes);

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  CString m_comments;
  std::vector<Dash> m_dashes;
  bool m_complex = false; // shapes or text in it: the pattern is kept as it came
};

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

class AcDbRegAppTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbRegAppTableRecord);

 protected:
  void dxfOutFields(DxfRecordEditor& editor) const override;
};

class AcDbDimStyleTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbDimStyleTableRecord);

 protected:
  void dxfOutFields(DxfRecordEditor& editor) const override;
};

class AcDbViewTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbViewTableRecord);
};

class AcDbUCSTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbUCSTableRecord);
};

class AcDbViewportTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbViewportTableRecord);
};

ZP_SYMBOL_TABLE(AcDbLinetype);
ZP_SYMBOL_TABLE(AcDbTextStyle);
ZP_SYMBOL_TABLE(AcDbRegApp);
ZP_SYMBOL_TABLE(AcDbDimStyle);
ZP_SYMBOL_TABLE(AcDbView);
ZP_SYMBOL_TABLE(AcDbUCS);
ZP_SYMBOL_TABLE(AcDbViewport);
