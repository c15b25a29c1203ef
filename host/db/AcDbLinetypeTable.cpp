#include "host/db/AcDbLinetypeTable.h"

#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbLinetypeTableRecord, AcDbSymbolTableRecord, "LTYPE")
ACRX_DXF_DEFINE_MEMBERS(AcDbLinetypeTable, AcDbSymbolTable, "")

double AcDbLinetypeTableRecord::patternLength() const {
  double length = 0;
  for (const Dash& dash : m_dashes) length += std::fabs(dash.length);
  return length;
}

Acad::ErrorStatus AcDbLinetypeTableRecord::setComments(const CString& comments) {
  return assign(m_comments, comments);
}

Acad::ErrorStatus AcDbLinetypeTableRecord::setDashes(std::vector<Dash> dashes) {
  for (const Dash& dash : dashes)
    if (!std::isfinite(dash.length)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_dashes = std::move(dashes);
  m_dashesChanged = true;
  return Acad::eOk;
}

void AcDbLinetypeTableRecord::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbSymbolTableRecord::dxfInFields(tags, context);
  m_comments.Empty();
  m_dashes.clear();
  m_dashesChanged = false;
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    if (tag.code == 3) m_comments = dxf::decodeText(tag.value);
    if (tag.code == 49) m_dashes.push_back({context.real(tag)});
  }
}

void AcDbLinetypeTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutEntry(editor, "LTYPE", "AcDbLinetypeTableRecord");
  editor.text(3, m_comments);
  if (!m_dashesChanged && !rawRecord().isEmpty()) return; // with shapes and texts, as it came
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
