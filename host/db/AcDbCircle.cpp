#include "host/db/AcDbCircle.h"

#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"
#include "host/ge/Curve.h"

#include <cmath>
#include <numbers>

ACRX_DXF_DEFINE_MEMBERS(AcDbCircle, AcDbCurve, "CIRCLE")

using entity::isFinite;
using entity::readVector;

AcDbCircle::AcDbCircle(const AcGePoint3d& centre, const AcGeVector3d& normal, double radius)
    : m_center(entity::toObject(centre, normal)), m_normal(normal), m_radius(radius) {}

AcGePoint3d AcDbCircle::center() const {
  return entity::toWorld(m_center, m_normal);
}

Acad::ErrorStatus AcDbCircle::setCenter(const AcGePoint3d& centre) {
  return assign(m_center, entity::toObject(centre, m_normal), isFinite(centre));
}

Acad::ErrorStatus AcDbCircle::setRadius(double radius) {
  return assign(m_radius, radius, radius > 0 && std::isfinite(radius));
}

void AcDbCircle::worldDraw(AcGiWorldDraw& draw) const {
  draw.circularArc(center(), m_radius, m_normal, entity::xAxis(m_normal), 0, 2 * std::numbers::pi);
}

Acad::ErrorStatus AcDbCircle::setNormal(const AcGeVector3d& normal) {
  if (!isFinite(normal) || normal.isZeroLength()) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  const AcGePoint3d centre = center();
  m_normal = normal.normal();
  m_center = entity::toObject(centre, m_normal);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getCurve(ge::Curve& curve) const {
  curve = ge::Curve::Circle(center(), m_normal, m_radius);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::setCurve(const ge::Curve& curve) {
  if (curve.Kind() != ge::CurveKind::kCircle) return Acad::eNotThatKindOfClass;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_normal = curve.Normal();
  m_center = entity::toObject(curve.Center(), m_normal);
  m_radius = curve.Radius();
  return Acad::eOk;
}

void AcDbCircle::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbEntity::dxfInFields(tags, context);
  m_center = {};
  m_normal = {0, 0, 1};
  m_radius = 1;
  m_thickness = 0;
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
    default:
      readVector(tag, 210, m_normal, context);
      break;
    }
  }
}

void AcDbCircle::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass("AcDbCircle");
  editor.real(39, m_thickness, 0.0);
  editor.point(10, m_center);
  editor.real(40, m_radius);
  editor.vector(210, m_normal, {0, 0, 1});
}
