#include "host/db/AcDbArc.h"

#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"
#include "host/ge/Curve.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbArc, AcDbCurve, "ARC")

using entity::isFinite;
using entity::readVector;

AcDbArc::AcDbArc(const AcGePoint3d& centre, const AcGeVector3d& normal, double radius, double startAngle,
                 double endAngle)
    : m_center(entity::toObject(centre, normal)), m_normal(normal), m_radius(radius),
      m_startAngle(startAngle), m_endAngle(endAngle) {}

AcGePoint3d AcDbArc::center() const {
  return entity::toWorld(m_center, m_normal);
}

Acad::ErrorStatus AcDbArc::setCenter(const AcGePoint3d& centre) {
  return assign(m_center, entity::toObject(centre, m_normal), isFinite(centre));
}

Acad::ErrorStatus AcDbArc::setRadius(double radius) {
  return assign(m_radius, radius, radius > 0 && std::isfinite(radius));
}

Acad::ErrorStatus AcDbArc::setStartAngle(double angle) {
  return assign(m_startAngle, angle, std::isfinite(angle));
}

Acad::ErrorStatus AcDbArc::setEndAngle(double angle) {
  return assign(m_endAngle, angle, std::isfinite(angle));
}

Acad::ErrorStatus AcDbArc::setNormal(const AcGeVector3d& normal) {
  if (!isFinite(normal) || normal.isZeroLength()) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  const AcGePoint3d centre = center();
  m_normal = normal.normal();
  m_center = entity::toObject(centre, m_normal);
  return Acad::eOk;
}

bool AcDbArc::isClosed() const {
  ge::Curve curve;
  getCurve(curve);
  return curve.Status() == ge::CurveStatus::kOk && curve.IsClosed();
}

Acad::ErrorStatus AcDbArc::getCurve(ge::Curve& curve) const {
  curve = ge::Curve::Arc(center(), m_normal, m_radius, m_startAngle, m_endAngle);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::setCurve(const ge::Curve& curve) {
  if (curve.Kind() != ge::CurveKind::kArc) return Acad::eNotThatKindOfClass;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_normal = curve.Normal();
  m_center = entity::toObject(curve.Center(), m_normal);
  m_radius = curve.Radius();
  m_startAngle = curve.StartAngle();
  m_endAngle = curve.EndAngle();
  return Acad::eOk;
}

void AcDbArc::worldDraw(AcGiWorldDraw& draw) const {
  draw.circularArc(center(), m_radius, m_normal, entity::xAxis(m_normal), m_startAngle,
                   entity::sweep(m_startAngle, m_endAngle));
}

void AcDbArc::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbEntity::dxfInFields(tags, context);
  m_center = {};
  m_normal = {0, 0, 1};
  m_radius = 1;
  m_startAngle = m_endAngle = m_thickness = 0;
  entity::FieldScope scope(tags);
  for (const DxfTag& tag : scope) {
    switch (tag.code) {
    case 10:
      m_center.x = context.real(tag);
      break;
    case 20:
      m_center.y = context.real(tag);
      break;
    case 30:
      m_center.z = context.real(tag);
      break;
    case 39:
      m_thickness = context.real(tag);
      break;
    case 40:
      m_radius = context.real(tag, 1.0);
      break;
    case 50:
      m_startAngle = entity::fromDegrees(context.real(tag));
      break;
    case 51:
      m_endAngle = entity::fromDegrees(context.real(tag));
      break;
    default:
      readVector(tag, 210, m_normal, context);
      break;
    }
  }
}

void AcDbArc::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass("AcDbCircle");
  editor.real(39, m_thickness, 0.0);
  editor.point(10, m_center);
  editor.real(40, m_radius);
  editor.vector(210, m_normal, {0, 0, 1});
  editor.subclass("AcDbArc");
  entity::writeDegrees(editor, 50, m_startAngle);
  entity::writeDegrees(editor, 51, m_endAngle);
}
