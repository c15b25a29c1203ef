#include "host/db/AcDbAttribute.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/EntityMath.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbTaggedText, AcDbText)
ACRX_DXF_DEFINE_MEMBERS(AcDbAttribute, AcDbTaggedText, "ATTRIB")
ACRX_DXF_DEFINE_MEMBERS(AcDbAttributeDefinition, AcDbTaggedText, "ATTDEF")
ACRX_DXF_DEFINE_MEMBERS(AcDbSequenceEnd, AcDbEntity, "SEQEND")

Acad::ErrorStatus AcDbTaggedText::setTag(const CString& tag) {
  return assign(m_tag, tag, !tag.IsEmpty() && tag.FindOneOf(L" \t\r\n") < 0);
}

Acad::ErrorStatus AcDbTaggedText::setInvisible(bool invisible) {
  return setFlag(1, invisible);
}

void AcDbTaggedText::worldDraw(AcGiWorldDraw& draw) const {
  if (!isInvisible()) AcDbText::worldDraw(draw);
}

void AcDbTaggedText::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbText::dxfInFields(tags, context);
  m_tag.Empty();
  m_flags = 0;
  for (const DxfTag& tag : entity::FieldScope(tags)) {
    if (tag.code == 2) m_tag = dxf::decodeText(dxf::trimBlanks(tag.value));
    if (tag.code == 70) m_flags = static_cast<int>(context.integerIn(tag, -0x8000, 0xFFFF, 0));
  }
}

void AcDbTaggedText::outTagged(DxfRecordEditor& editor, std::string_view subclass,
                               const CString* prompt) const {
  AcDbText::dxfOutFields(editor);
  editor.subclass(subclass);
  if (prompt) editor.text(3, *prompt);
  editor.name(2, m_tag);
  editor.integer(70, m_flags);
}

void AcDbAttribute::dxfOutFields(DxfRecordEditor& editor) const {
  outTagged(editor, "AcDbAttribute", nullptr);
}

Acad::ErrorStatus AcDbAttributeDefinition::setPrompt(const CString& prompt) {
  return assign(m_prompt, prompt);
}

void AcDbAttributeDefinition::worldDraw(AcGiWorldDraw& draw) const {
  if (isConstant()) {
    AcDbTaggedText::worldDraw(draw);
    return;
  }
  const auto* block = AcDbBlockTableRecord::cast(ownerId().object());
  if (!block || block->isLayout()) drawText(draw, tag());
}

void AcDbAttributeDefinition::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbTaggedText::dxfInFields(tags, context);
  m_prompt.Empty();
  for (const DxfTag& tag : entity::FieldScope(tags))
    if (tag.code == 3) m_prompt = dxf::decodeText(tag.value);
}

void AcDbAttributeDefinition::dxfOutFields(DxfRecordEditor& editor) const {
  outTagged(editor, "AcDbAttributeDefinition", &m_prompt);
}
