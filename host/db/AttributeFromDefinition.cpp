// An attribute made after its definition: the definition's record in the words of an attribute, moved to
// where the insertion puts it.
#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"
#include "host/db/RecordHead.h"

namespace {

// Alignment and what the host has no field for come along; the prompt, an embedded text of several lines and
// extended data belong to the definition alone.
DxfRecord attributeRecord(const AcDbAttributeDefinition& definition) {
  std::string text;
  const DxfRecord headless = dxf::withoutHead(definition.record());
  for (const DxfTag& tag : headless.tags()) {
    if (tag.code == 101 || tag.code >= 1000) break;
    if (tag.code == 3 || tag.code == 67) continue;
    const bool isMarker = tag.code == 100 && dxf::trimBlanks(tag.value) == "AcDbAttributeDefinition";
    text += DxfRecordEditor::tag(tag.code, tag.code == 0 ? "ATTRIB" : isMarker ? "AcDbAttribute" : tag.value);
  }
  return DxfRecord::own(text);
}

} // namespace

Acad::ErrorStatus AcDbAttribute::setAttributeFromBlock(const AcDbAttributeDefinition* definition,
                                                       const AcGeMatrix3d& blockTransform) {
  if (!definition) return Acad::eNullObjectPointer;
  if (database()) return Acad::eAlreadyInDb;
  if (!definition->database()) return Acad::eNoDatabase;
  if (!entity::isFinite(blockTransform)) return Acad::eInvalidInput;
  if (blockTransform.isSingular()) return Acad::eCannotScaleNonUniformly;
  setRecord(attributeRecord(*definition), DxfDecodeContext(*definition->database()));
  invalidateRecord();
  return followUnevenly(blockTransform);
}
