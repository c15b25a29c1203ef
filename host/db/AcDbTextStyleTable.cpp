#include "host/db/AcDbTextStyleTable.h"

#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbTextStyleTableRecord, AcDbSymbolTableRecord, "STYLE")
ACRX_DXF_DEFINE_MEMBERS(AcDbTextStyleTable, AcDbSymbolTable, "")

Acad::ErrorStatus AcDbTextStyleTableRecord::setTextSize(double size) {
  if (!(size >= 0) || !std::isfinite(size)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_textSize = size;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setXScale(double scale) {
  if (!(scale > 0) || !std::isfinite(scale)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_xScale = scale;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setFileName(const CString& name) {
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_fileName = name;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setBigFontFileName(const CString& name) {
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_bigFont = name;
  return Acad::eOk;
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
