#include "host/db/AcDbTables.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbLinetypeTableRecord, AcDbSymbolTableRecord, "LTYPE")
ACRX_DXF_DEFINE_MEMBERS(AcDbTextStyleTableRecord, AcDbSymbolTableRecord, "STYLE")
ACRX_DXF_DEFINE_MEMBERS(AcDbRegAppTableRecord, AcDbSymbolTableRecord, "APPID")
ACRX_DXF_DEFINE_MEMBERS(AcDbDimStyleTableRecord, AcDbSymbolTableRecord, "DIMSTYLE")
ACRX_DXF_DEFINE_MEMBERS(AcDbViewTableRecord, AcDbSymbolTableRecord, "VIEW")
ACRX_DXF_DEFINE_MEMBERS(AcDbUCSTableRecord, AcDbSymbolTableRecord, "UCS")
ACRX_DXF_DEFINE_MEMBERS(AcDbViewportTableRecord, AcDbSymbolTableRecord, "VPORT")
ACRX_DXF_DEFINE_MEMBERS(AcDbLinetypeTable, AcDbSymbolTable, "")
ACRX_DXF_DEFINE_MEMBERS(AcDbTextStyleTable, AcDbSymbolTable, "")
ACRX_DXF_DEFINE_MEMBERS(AcDbRegAppTable, AcDbSymbolTable, "")
ACRX_DXF_DEFINE_MEMBERS(AcDbDimStyleTable, AcDbSymbolTable, "")
ACRX_DXF_DEFINE_MEMBERS(AcDbViewTable, AcDbSymbolTable, "")
ACRX_DXF_DEFINE_MEMBERS(AcDbUCSTable, AcDbSymbolTable, "")
ACRX_DXF_DEFINE_MEMBERS(AcDbViewportTable, AcDbSymbolTable, "")

// --- linetypes
// -------------------------------------------------------------------------------------------------

double AcDbLinetypeTableRecord::patternLength() const {
  double length = 0;
  for (const Dash& dash : m_dashes) length += std::fabs(dash.length);
  return length;
}

Acad::ErrorStatus AcDbLinetypeTableRecord::setComments(const CString& comments) {
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_comments = comments;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLinetypeTableRecord::setDashes(std::vector<Dash> dashes) {
  for (const Dash& dash : dashes)
    if (!std::isfinite(dash.length)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_dashes = std::move(dashes);
  m_complex = false;
  return Acad::eOk;
}

void AcDbLinetypeTableRecord::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbSymbolTableRecord::dxfInFields(tags, context);
  m_comments.Empty();
  m_dashes.clear();
  m_complex = false;
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    if (tag.code == 3) m_comments = dxf::decodeText(tag.value);
    if (tag.code == 49) m_dashes.push_back({context.real(tag)});
    if (tag.code == 74 && context.integer(tag) != 0) m_complex = true;
  }
}

void AcDbLinetypeTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutEntry(editor, "LTYPE", "AcDbLinetypeTableRecord");
  editor.text(3, m_comments);
  if (m_complex) return;
  editor.integer(72, 65);
  editor.integer(73, static_cast<long long>(m_dashes.size()));
  editor.real(40, patternLength());
  std::string run;
  for (const Dash& dash : m_dashes) {
    run += DxfRecordEditor::realTag(49, dash.length);
    if (editor.subclassMarkers()) run += DxfRecordEditor::tag(74, "0");
  }
  static constexpr int codes[] = {49, 74};
  editor.replaceRun(codes, run);
}

// --- text styles
// -----------------------------------------------------------------------------------------------

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

// --- names only
// ------------------------------------------------------------------------------------------------

void AcDbRegAppTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutEntry(editor, "APPID", "AcDbRegAppTableRecord");
}

void AcDbDimStyleTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  // Dimension styles keep their handle under a code of its own, because 5 is an arrow's name there.
  dxfOutEntry(editor, "DIMSTYLE", "AcDbDimStyleTableRecord", 105);
}
