#include "host/db/AcDbTextStyleTable.h"

#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbTextStyleTableRecord, AcDbSymbolTableRecord, "STYLE")
ACRX_DXF_DEFINE_MEMBERS(AcDbTextStyleTable, AcDbSymbolTable, "")

Acad::ErrorStatus AcDbTextStyleTableRecord::setTextSize(double size) {
  return assign(m_textSize, size, size >= 0 && std::isfinite(size));
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setXScale(double scale) {
  return assign(m_xScale, scale, scale > 0 && std::isfinite(scale));
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setFileName(const CString& name) {
  return assign(m_fileName, name);
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setBigFontFileName(const CString& name) {
  return assign(m_bigFont, name);
}

void AcDbTextStyleTableRecord::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbSymbolTableRecord::dxfInFields(tags, context);
  m_textSize = 0;
  m_xScale = 1;
  m_fileName.Empty();
  m_bigFont.Empty();
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    switch (tag.code) {
    case 40:
      m_textSize = context.real(tag);
      break;
    case 41:
      m_xScale = context.real(tag, 1.0);
      break;
    case 3:
      m_fileName = dxf::decodeText(tag.value);
      break;
    case 4:
      m_bigFont = dxf::decodeText(tag.value);
      break;
    default:
      break;
    }
  }
}

void AcDbTextStyleTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutEntry(editor, "STYLE", "AcDbTextStyleTableRecord");
  editor.real(40, m_textSize);
  editor.real(41, m_xScale);
  if (rawRecord().isEmpty()) {
    editor.real(50, 0.0);
    editor.integer(71, 0);
    editor.real(42, m_textSize > 0 ? m_textSize : 2.5);
  }
  editor.text(3, m_fileName);
  editor.text(4, m_bigFont);
}
