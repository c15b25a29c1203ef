#include "host/db/AcDbBlockReference.h"

#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/db/BlockCycle.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"
#include "host/db/MissingReference.h"

#include <algorithm>
#include <cmath>
#include <vector>

ACRX_DXF_DEFINE_MEMBERS(AcDbBlockReference, AcDbEntity, "INSERT")

namespace {

// Blocks that are being drawn now: a file may hold a block that contains itself.
thread_local std::vector<AcDbObjectId> t_drawing;

constexpr std::size_t kMaxCopies = 10000; // of one insertion in rows and columns

} // namespace

AcGePoint3d AcDbBlockReference::position() const {
  return entity::toWorld(m_position, m_normal);
}

Acad::ErrorStatus AcDbBlockReference::setPosition(const AcGePoint3d& position) {
  return assign(m_position, entity::toObject(position, m_normal), entity::isFinite(position));
}

Acad::ErrorStatus AcDbBlockReference::setRotation(double angle) {
  return assign(m_rotation, angle, std::isfinite(angle));
}

Acad::ErrorStatus AcDbBlockReference::setScaleFactors(const AcGeVector3d& scale) {
  const bool valid = entity::isFinite(scale) && scale.x != 0 && scale.y != 0 && scale.z != 0;
  return assign(m_scale, scale, valid);
}

Acad::ErrorStatus AcDbBlockReference::setNormal(const AcGeVector3d& normal) {
  if (!entity::isFinite(normal) || normal.isZeroLength()) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  const AcGePoint3d at = position();
  m_normal = normal.normal();
  m_position = entity::toObject(at, m_normal);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::setBlockTableRecord(const AcDbObjectId& block) {
  if (block.isNull()) return Acad::eNullObjectId;
  if (!AcDbBlockTableRecord::cast(block.object())) return Acad::eNotThatKindOfClass;
  if (database() && block.database() != database()) return Acad::eWrongDatabase;
  if (database() && blockContains(block, ownerId())) return Acad::eSelfReference;
  return assign(m_block, block);
}

Acad::ErrorStatus AcDbBlockReference::appendAttribute(AcDbAttribute* attribute) {
  if (!attribute) return Acad::eNullObjectPointer;
  if (attribute->database()) return Acad::eAlreadyInDb;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  if (attribute->layerId().isNull() && layerId()) attribute->setLayer(layerId());
  if (!database()) {
    addNewSubEntity(std::unique_ptr<AcDbEntity>(attribute));
    return Acad::eOk;
  }
  return database()->addSubEntity(attribute, *this);
}

Acad::ErrorStatus AcDbBlockReference::appendAttribute(AcDbObjectId& id, AcDbAttribute* attribute) {
  const auto status = appendAttribute(attribute);
  if (status == Acad::eOk) id = attribute->objectId();
  return status;
}

std::vector<AcDbObjectId> AcDbBlockReference::attributes() const {
  std::vector<AcDbObjectId> ids;
  for (const AcDbObjectId& id : subEntities())
    if (!id.isErased() && AcDbAttribute::cast(id.object())) ids.push_back(id);
  return ids;
}

Acad::ErrorStatus AcDbBlockReference::setBlockTransform(const AcGeMatrix3d& matrix) {
  if (!entity::isFinite(matrix)) return Acad::eInvalidInput;
  if (matrix.isSingular() || !matrix.isScaledOrtho()) return Acad::eCannotScaleNonUniformly;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  AcGePoint3d origin;
  AcGeVector3d x, y, z;
  matrix.getCoordSystem(origin, x, y, z);
  m_normal = x.crossProduct(y).normal();
  const AcGeVector3d xAxis = entity::xAxis(m_normal);
  m_rotation = std::atan2(x.dotProduct(m_normal.crossProduct(xAxis)), x.dotProduct(xAxis));
  m_scale = {x.length(), y.length(), std::copysign(z.length(), z.dotProduct(m_normal))};
  m_position = entity::toObject(origin, m_normal);
  return Acad::eOk;
}

// Of each row and column, capped: a damaged file may ask for a thousand million.
std::vector<AcGeMatrix3d> AcDbBlockReference::copyTransforms() const {
  std::vector<AcGeMatrix3d> transforms;
  const AcGeMatrix3d first = blockTransform();
  const AcGeMatrix3d turn =
      AcGeMatrix3d::planeToWorld(m_normal) * AcGeMatrix3d::rotation(m_rotation, AcGeVector3d(0, 0, 1));
  for (int row = 0; row < m_rows; ++row) {
    for (int column = 0; column < m_columns && transforms.size() < kMaxCopies; ++column) {
      const AcGeVector3d offset = turn * AcGeVector3d(column * m_columnSpacing, row * m_rowSpacing, 0);
      transforms.push_back(AcGeMatrix3d::translation(offset) * first);
    }
  }
  return transforms;
}

AcGeMatrix3d AcDbBlockReference::blockTransform() const {
  const auto* block = AcDbBlockTableRecord::cast(m_block.object());
  AcGeMatrix3d scaling;
  scaling.entry[0][0] = m_scale.x;
  scaling.entry[1][1] = m_scale.y;
  scaling.entry[2][2] = m_scale.z;
  const AcGePoint3d origin = block ? block->origin() : AcGePoint3d();
  return AcGeMatrix3d::planeToWorld(m_normal) * AcGeMatrix3d::translation(m_position.asVector()) *
         AcGeMatrix3d::rotation(m_rotation, AcGeVector3d(0, 0, 1)) * scaling *
         AcGeMatrix3d::translation(-origin.asVector());
}

void AcDbBlockReference::worldDraw(AcGiWorldDraw& draw) const {
  const auto* block = AcDbBlockTableRecord::cast(m_block.object());
  if (!block || std::find(t_drawing.begin(), t_drawing.end(), m_block) != t_drawing.end()) return;
  if (const auto missing = entity::missingReferenceOf(*this)) {
    const AcGeMatrix3d turn =
        AcGeMatrix3d::planeToWorld(m_normal) * AcGeMatrix3d::rotation(m_rotation, AcGeVector3d(0, 0, 1));
    draw.text(position(), m_normal, turn * AcGeVector3d(1, 0, 0), missing->height, 1, missing->text);
    return;
  }
  t_drawing.push_back(m_block);
  const auto drawAll = [&](const std::vector<AcDbObjectId>& ids) {
    for (const AcDbObjectId& id : ids) {
      const auto* inner = AcDbEntity::cast(id.object());
      if (!inner || inner->isErased() || !draw.beginEntity(*inner)) continue;
      inner->worldDraw(draw);
      draw.endEntity(*inner);
    }
  };
  for (const AcGeMatrix3d& transform : copyTransforms()) {
    draw.pushModelTransform(transform);
    drawAll(block->drawnEntities());
    draw.popModelTransform();
  }
  t_drawing.pop_back();
  drawAll(subEntities());
  for (const auto& attribute : newSubEntities()) attribute->worldDraw(draw);
}

Acad::ErrorStatus AcDbBlockReference::transformBy(const AcGeMatrix3d& matrix) {
  if (!matrix.isUniScaledOrtho()) return Acad::eCannotScaleNonUniformly;
  if (!entity::isFinite(matrix)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  const AcGePoint3d moved = matrix * position();
  const AcGeMatrix3d turn =
      AcGeMatrix3d::planeToWorld(m_normal) * AcGeMatrix3d::rotation(m_rotation, AcGeVector3d(0, 0, 1));
  const AcGeVector3d direction = matrix * (turn * AcGeVector3d(1, 0, 0));
  m_normal = entity::transformedNormal(m_normal, matrix);
  m_position = entity::toObject(moved, m_normal);
  const AcGeVector3d x = entity::xAxis(m_normal);
  m_rotation = std::atan2(direction.dotProduct(m_normal.crossProduct(x)), direction.dotProduct(x));
  m_scale *= matrix.scale();
  // A reflection keeps the normal's side and turns the block's y axis over.
  if (matrix.det() < 0) m_scale.y = -m_scale.y;
  for (const AcDbObjectId& id : subEntities()) {
    AcDbObjectPointer<AcDbEntity> attribute(id, AcDb::kForWrite);
    if (attribute) attribute->transformBy(matrix);
  }
  for (const auto& attribute : newSubEntities()) attribute->transformBy(matrix);
  return Acad::eOk;
}

void AcDbBlockReference::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbEntity::dxfInFields(tags, context);
  m_position = {};
  m_normal = {0, 0, 1};
  m_scale = {1, 1, 1};
  m_rotation = m_columnSpacing = m_rowSpacing = 0;
  m_block.setNull();
  m_columns = m_rows = 1;
  const entity::FieldScope scope(tags);
  for (const DxfTag& tag : scope) {
    switch (tag.code) {
    case 2:
      m_block = context.block(tag.value);
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
    case 41:
      m_scale.x = context.real(tag, 1.0);
      break;
    case 42:
      m_scale.y = context.real(tag, 1.0);
      break;
    case 43:
      m_scale.z = context.real(tag, 1.0);
      break;
    case 44:
      m_columnSpacing = context.real(tag);
      break;
    case 45:
      m_rowSpacing = context.real(tag);
      break;
    case 50:
      m_rotation = entity::fromDegrees(context.real(tag));
      break;
    case 70:
      m_columns = static_cast<int>(std::clamp<long long>(context.integer(tag, 1), 0, 32767));
      break;
    case 71:
      m_rows = static_cast<int>(std::clamp<long long>(context.integer(tag, 1), 0, 32767));
      break;
    default:
      entity::readVector(tag, 210, m_normal, context);
      break;
    }
  }
}

void AcDbBlockReference::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass("AcDbBlockReference");
  if (hasSubEntities())
    editor.integer(66, 1);
  else
    editor.remove(66);
  if (const auto* block = AcDbSymbolTableRecord::cast(m_block.object())) editor.name(2, block->name());
  editor.point(10, m_position);
  editor.real(41, m_scale.x, 1.0);
  editor.real(42, m_scale.y, 1.0);
  editor.real(43, m_scale.z, 1.0);
  entity::writeDegrees(editor, 50, m_rotation, true);
  editor.integer(70, m_columns, 1);
  editor.integer(71, m_rows, 1);
  editor.real(44, m_columnSpacing, 0.0);
  editor.real(45, m_rowSpacing, 0.0);
  editor.vector(210, m_normal, {0, 0, 1});
}
