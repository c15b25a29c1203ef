#include "host/db/AcDbLayerTable.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbTables.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"

#include <cstdlib>

ACRX_DXF_DEFINE_MEMBERS(AcDbLayerTableRecord, AcDbSymbolTableRecord, "LAYER")
ACRX_DXF_DEFINE_MEMBERS(AcDbLayerTable, AcDbSymbolTable, "")

Acad::ErrorStatus AcDbLayerTableRecord::setIsOff(bool off) {
  if (off == m_off && isWriteEnabled()) return Acad::eOk;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_off = off;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLayerTableRecord::setIsFrozen(bool frozen) {
  if (frozen == isFrozen() && isWriteEnabled()) return Acad::eOk;
  if (frozen && isWriteEnabled() && database() && database()->clayer() == objectId())
    return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  setFlag(1, frozen);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLayerTableRecord::setIsLocked(bool locked) {
  if (locked == isLocked() && isWriteEnabled()) return Acad::eOk;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  setFlag(4, locked);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLayerTableRecord::setVPDFLT(bool frozen) {
  if (frozen == VPDFLT() && isWriteEnabled()) return Acad::eOk;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  setFlag(2, frozen);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLayerTableRecord::setIsPlottable(bool plottable) {
  if (plottable == m_plottable && isWriteEnabled()) return Acad::eOk;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_plottable = plottable;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLayerTableRecord::setColor(const AcCmColor& color) {
  return assign(m_colorIndex, static_cast<short>(color.colorIndex()),
                !color.isByLayer() && !color.isByBlock());
}

Acad::ErrorStatus AcDbLayerTableRecord::setLinetypeObjectId(const AcDbObjectId& linetype) {
  if (linetype.isNull()) return Acad::eNullObjectId;
  const auto* record = AcDbLinetypeTableRecord::cast(linetype.object());
  if (!record) return Acad::eNotThatKindOfClass;
  if (record->name().CompareNoCase(L"ByLayer") == 0 || record->name().CompareNoCase(L"ByBlock") == 0)
    return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_linetype = linetype;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLayerTableRecord::setLineWeight(AcDb::LineWeight weight) {
  return assign(m_lineWeight, static_cast<short>(weight), AcDb::isValidLineWeight(weight));
}

void AcDbLayerTableRecord::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbSymbolTableRecord::dxfInFields(tags, context);
  m_off = false;
  m_plottable = true;
  m_colorIndex = 7;
  m_lineWeight = AcDb::kLnWtByLwDefault;
  m_linetype.setNull();
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    switch (tag.code) {
    case 62: {
      const auto colour = context.integerIn(tag, -256, 256, 7);
      m_off = colour < 0;
      m_colorIndex = static_cast<short>(std::llabs(colour));
      break;
    }
    case 6:
      m_linetype = context.linetype(tag.value);
      break;
    case 290:
      m_plottable = context.integer(tag, 1) != 0;
      break;
    case 370:
      m_lineWeight = static_cast<short>(
          context.integerIn(tag, AcDb::kLnWtByLwDefault, AcDb::kLnWt211, AcDb::kLnWtByLwDefault));
      break;
    default:
      break;
    }
  }
}

void AcDbLayerTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutEntry(editor, "LAYER", "AcDbLayerTableRecord");
  // A true colour beside the index is what other programs show, so it goes when the index changes.
  if (std::llabs(editor.integerAt(62).value_or(7)) != m_colorIndex) {
    editor.remove(420);
    editor.remove(430);
  }
  editor.integer(62, m_off ? -m_colorIndex : m_colorIndex);
  const auto* linetype = AcDbLinetypeTableRecord::cast(m_linetype.object());
  editor.name(6, linetype ? linetype->name() : CString(L"Continuous"));
  if (!editor.subclassMarkers()) return; // older drawings know no more
  editor.integer(290, m_plottable ? 1 : 0, 1);
  if (database() && database()->form().version >= "AC1015")
    editor.integer(370, m_lineWeight, static_cast<int>(AcDb::kLnWtByLwDefault));
}
