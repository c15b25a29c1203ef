#include "host/db/AcDbText.h"

#include "host/db/AcDbSymbolTableRecord.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/EntityMath.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbText, AcDbEntity, "TEXT")

Acad::ErrorStatus AcDbText::setTextString(const CString& text) {
  const auto status = assign(m_text, text);
  m_textChanged |= status == Acad::eOk;
  return status;
}

AcGePoint3d AcDbText::position() const {
  return entity::toWorld(m_position, m_normal);
}

Acad::ErrorStatus AcDbText::setPosition(const AcGePoint3d& position) {
  if (!entity::isFinite(position)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  const AcGePoint3d moved = entity::toObject(position, m_normal);
  if (m_alignment) *m_alignment += moved - m_position;
  m_position = moved;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setHeight(double height) {
  return assign(m_height, height, height > 0 && std::isfinite(height));
}

Acad::ErrorStatus AcDbText::setWidthFactor(double factor) {
  return assign(m_widthFactor, factor, factor > 0 && std::isfinite(factor));
}

Acad::ErrorStatus AcDbText::setRotation(double angle) {
  return assign(m_rotation, angle, std::isfinite(angle));
}

Acad::ErrorStatus AcDbText::setTextStyle(const AcDbObjectId& style) {
  if (!AcDbSymbolTableRecord::cast(style.object())) return Acad::eNotThatKindOfClass;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_style = style;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setOblique(double angle) {
  return assign(m_oblique, angle, std::isfinite(angle));
}

std::optional<AcGePoint3d> AcDbText::alignmentPoint() const {
  return m_alignment ? std::optional(entity::toWorld(*m_alignment, m_normal)) : std::nullopt;
}

void AcDbText::worldDraw(AcGiWorldDraw& draw) const {
  drawText(draw, textString());
}

void AcDbText::drawText(AcGiWorldDraw& draw, const CString& text) const {
  const AcGeVector3d x = entity::xAxis(m_normal);
  const AcGeVector3d y = m_normal.crossProduct(x);
  draw.text(position(), m_normal, x * std::cos(m_rotation) + y * std::sin(m_rotation), m_height,
            m_widthFactor, text);
}

Acad::ErrorStatus AcDbText::transformBy(const AcGeMatrix3d& matrix) {
  if (!matrix.isUniScaledOrtho()) return Acad::eCannotScaleNonUniformly;
  if (!entity::isFinite(matrix)) return Acad::eInvalidInput;
  return followUnevenly(matrix);
}

Acad::ErrorStatus AcDbText::followUnevenly(const AcGeMatrix3d& matrix) {
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  const AcGeVector3d x = entity::xAxis(m_normal);
  const AcGeVector3d y = m_normal.crossProduct(x);
  const AcGeVector3d direction = matrix * (x * std::cos(m_rotation) + y * std::sin(m_rotation));
  const AcGeVector3d up = matrix * (y * std::cos(m_rotation) - x * std::sin(m_rotation));
  const AcGePoint3d moved = matrix * position();
  const auto aligned =
      m_alignment ? std::optional(matrix * entity::toWorld(*m_alignment, m_normal)) : std::nullopt;
  m_normal = entity::transformedNormal(m_normal, matrix);
  m_position = entity::toObject(moved, m_normal);
  if (aligned) m_alignment = entity::toObject(*aligned, m_normal);
  const AcGeVector3d newX = entity::xAxis(m_normal);
  m_rotation = std::atan2(direction.dotProduct(m_normal.crossProduct(newX)), direction.dotProduct(newX));
  if (matrix.isUniScaledOrtho()) {
    m_height *= matrix.scale();
  } else {
    m_height *= up.length();
    m_widthFactor *= direction.length() / up.length();
  }
  return Acad::eOk;
}

void AcDbText::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbEntity::dxfInFields(tags, context);
  m_position = {};
  m_alignment.reset();
  m_normal = {0, 0, 1};
  m_height = 2.5;
  m_rotation = m_oblique = 0;
  m_widthFactor = 1;
  m_style.setNull();
  m_text.Empty();
  m_textChanged = false;
  m_horizontal = m_vertical = m_generation = 0;
  const auto modeIn = [&](const DxfTag& tag) {
    return static_cast<int>(context.integerIn(tag, -0x8000, 0x7FFF, 0));
  };
  bool hasText = false;
  const entity::FieldScope scope(tags);
  for (const DxfTag& tag : scope) {
    if (tag.code == verticalCode()) m_vertical = modeIn(tag);
    switch (tag.code) {
    case 1:
      if (!hasText) m_text = dxf::decodeText(tag.value);
      hasText = true;
      break;
    case 71:
      m_generation = modeIn(tag);
      break;
    case 72:
      m_horizontal = modeIn(tag);
      break;
    case 10:
      m_position.x = context.real(tag);
      break;
    case 20:
      m_position.y = context.real(tag);
      break;
    case 30:
      m_position.z = context.real(tag);
      break;
    case 11:
      m_alignment.emplace().x = context.real(tag);
      break;
    case 21:
      if (m_alignment) m_alignment->y = context.real(tag);
      break;
    case 31:
      if (m_alignment) m_alignment->z = context.real(tag);
      break;
    case 40:
      m_height = context.real(tag, 2.5);
      break;
    case 41:
      m_widthFactor = context.real(tag, 1.0);
      break;
    case 50:
      m_rotation = entity::fromDegrees(context.real(tag));
      break;
    case 51:
      m_oblique = entity::fromDegrees(context.real(tag));
      break;
    case 7:
      m_style = context.textStyle(tag.value);
      break;
    default:
      entity::readVector(tag, 210, m_normal, context);
      break;
    }
  }
}

void AcDbText::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass("AcDbText");
  editor.point(10, m_position);
  editor.real(40, m_height);
  if (m_textChanged || rawRecord().isEmpty()) editor.text(1, m_text);
  entity::writeDegrees(editor, 50, m_rotation, true);
  editor.real(41, m_widthFactor, 1.0);
  entity::writeDegrees(editor, 51, m_oblique, true);
  if (const auto* style = AcDbSymbolTableRecord::cast(m_style.object()))
    editor.name(7, style->name(), L"Standard");
  if (m_alignment) editor.point(11, *m_alignment);
  editor.vector(210, m_normal, {0, 0, 1});
  // The second marker of the class closes its first half, also where no alignment follows.
  if (rawRecord().isEmpty() && editor.subclassMarkers() && hasClosingMarker())
    editor.closingMarker("AcDbText");
}
