#include "host/db/AcDbLine.h"

#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"
#include "host/ge/Curve.h"

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

Acad::ErrorStatus AcDbLine::getCurve(ge::Curve& curve) const {
  curve = ge::Curve::Line(m_start, m_end);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::setCurve(const ge::Curve& curve) {
  if (curve.Kind() != ge::CurveKind::kLine) return Acad::eNotThatKindOfClass;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_start = curve.PieceStart(0);
  m_end = curve.PieceEnd(0);
  return Acad::eOk;
}

void AcDbLine::worldDraw(AcGiWorldDraw& draw) const {
  const AcGePoint3d points[] = {m_start, m_end};
  draw.polyline(points);
}

Acad::ErrorStatus AcDbLine::transformBy(const AcGeMatrix3d& matrix) {
  const AcGePoint3d start = matrix * m_start;
  const AcGePoint3d end = matrix * m_end;
  if (!isFinite(start) || !isFinite(end)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_start = start;
  m_end = end;
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
