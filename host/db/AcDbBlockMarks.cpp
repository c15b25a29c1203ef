#include "host/db/AcDbBlockMarks.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbBlockBegin, AcDbEntity, "BLOCK")
ACRX_DXF_DEFINE_MEMBERS(AcDbBlockEnd, AcDbEntity, "ENDBLK")

namespace {

CString blockNameOf(const AcDbObject& mark) {
  const auto* block = AcDbBlockTableRecord::cast(mark.ownerId().object());
  return block ? block->name() : CString();
}

} // namespace

Acad::ErrorStatus AcDbBlockBegin::setBasePoint(const AcGePoint3d& point) {
  return assign(m_basePoint, point);
}

Acad::ErrorStatus AcDbBlockBegin::setFlags(int flags) {
  return assign(m_flags, flags);
}

Acad::ErrorStatus AcDbBlockBegin::setXrefPath(const CString& path) {
  return assign(m_xrefPath, path);
}

Acad::ErrorStatus AcDbBlockBegin::setComments(const CString& comments) {
  return assign(m_comments, comments);
}

CString AcDbBlockBegin::nameIn(DxfTags tags) {
  for (const DxfTag& tag : dxfOwnTags(tags))
    if (tag.code == 2) return dxf::decodeText(dxf::trimBlanks(tag.value));
  return {};
}

void AcDbBlockBegin::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbEntity::dxfInFields(tags, context);
  m_basePoint = {};
  m_flags = 0;
  m_xrefPath.Empty();
  m_comments.Empty();
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    switch (tag.code) {
    case 10:
      m_basePoint.x = context.real(tag);
      break;
    case 20:
      m_basePoint.y = context.real(tag);
      break;
    case 30:
      m_basePoint.z = context.real(tag);
      break;
    case 1:
      m_xrefPath = dxf::decodeText(tag.value);
      break;
    case 4:
      m_comments = dxf::decodeText(tag.value);
      break;
    case 70:
      m_flags = static_cast<int>(context.integerIn(tag, -0x8000, 0xFFFF, 0));
      break;
    default:
      break;
    }
  }
}

void AcDbBlockBegin::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass("AcDbBlockBegin");
  editor.name(2, blockNameOf(*this));
  editor.integer(70, m_flags);
  editor.point(10, m_basePoint);
  editor.name(3, blockNameOf(*this));
  if (rawRecord().isEmpty())
    editor.text(1, m_xrefPath);
  else
    editor.text(1, m_xrefPath, L"");
  editor.text(4, m_comments, L"");
}

void AcDbBlockEnd::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass("AcDbBlockEnd");
}
