#include "host/db/AcDbPoint.h"

#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbPoint, AcDbEntity, "POINT")

using entity::isFinite;
using entity::readVector;

Acad::ErrorStatus AcDbPoint::setPosition(const AcGePoint3d& position) {
  return assign(m_position, position, isFinite(position));
}

void AcDbPoint::worldDraw(AcGiWorldDraw& draw) const {
  draw.point(m_position);
}

Acad::ErrorStatus AcDbPoint::transformBy(const AcGeMatrix3d& matrix) {
  if (!entity::isFinite(matrix) || !isFinite(matrix * m_position)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_position.transformBy(matrix);
  m_normal = entity::transformedNormal(m_normal, matrix);
  return Acad::eOk;
}

void AcDbPoint::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbEntity::dxfInFields(tags, context);
  m_position = {};
  m_normal = {0, 0, 1};
  entity::FieldScope scope(tags);
  for (const DxfTag& tag : scope) {
    switch (tag.code) {
    case 10:
      m_position.x = context.real(tag);
      break;
    case 20:
      m_position.y = context.real(tag);
      break;
    case 30:
      m_position.z = context.real(tag);
      break;
    default:
      readVector(tag, 210, m_normal, context);
      break;
    }
  }
}

void AcDbPoint::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass("AcDbPoint");
  editor.point(10, m_position);
  editor.vector(210, m_normal, {0, 0, 1});
}
