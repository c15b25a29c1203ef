#include "host/db/AcDbLine.h"

#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbLine, AcDbCurve, "LINE")

using entity::isFinite;
using entity::readVector;

Acad::ErrorStatus AcDbLine::setStartPoint(const AcGePoint3d& point) {
  return assign(m_start, point, isFinite(point));
}

Acad::ErrorStatus AcDbLine::setEndPoint(const AcGePoint3d& point) {
  return assign(m_end, point, isFinite(point));
}

Acad::ErrorStatus AcDbLine::getStartPoint(AcGePoint3d& point) const {
  point = m_start;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getEndPoint(AcGePoint3d& point) const {
  point = m_end;
  return Acad::eOk;
}

void AcDbLine::worldDraw(AcGiWorldDraw& draw) const {
  const AcGePoint3d points[] = {m_start, m_end};
  draw.polyline(points);
}

Acad::ErrorStatus AcDbLine::transformBy(const AcGeMatrix3d& matrix) {
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_start.transformBy(matrix);
  m_end.transformBy(matrix);
  m_normal = entity::transformedNormal(m_normal, matrix);
  return Acad::eOk;
}

void AcDbLine::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbEntity::dxfInFields(tags, context);
  m_start = m_end = {};
  m_normal = {0, 0, 1};
  m_thickness = 0;
  entity::FieldScope scope(tags);
  for (const DxfTag& tag : scope) {
    switch (tag.code) {
    case 10:
      m_start.x = context.real(tag);
      break;
    case 20:
      m_start.y = context.real(tag);
      break;
    case 30:
      m_start.z = context.real(tag);
      break;
    case 11:
      m_end.x = context.real(tag);
      break;
    case 21:
      m_end.y = context.real(tag);
      break;
    case 31:
      m_end.z = context.real(tag);
      break;
    case 39:
      m_thickness = context.real(tag);
      break;
    default:
      readVector(tag, 210, m_normal, context);
      break;
    }
  }
}

void AcDbLine::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass("AcDbLine");
  editor.real(39, m_thickness, 0.0);
  editor.point(10, m_start);
  editor.point(11, m_end);
  editor.vector(210, m_normal, {0, 0, 1});
}
