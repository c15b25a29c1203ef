// DIMENSION of every kind: its picture is a block that whoever made it has drawn, in world coordinates.
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/scene/Pen.h"
#include "host/scene/painters/LinearDimension.h"
#include "host/scene/painters/Painters.h"

namespace scene {
namespace {

AcDbObjectId blockNamed(AcDbDatabase& database, const CString& name) {
  AcDbObjectId id;
  const AcDbSymbolTable* blocks = database.tableOf("BLOCK_RECORD");
  if (blocks && !name.IsEmpty()) blocks->getAt(name, id);
  return id;
}

// A copy of a dimension may share its block, which is then to be moved to its place.
AcGeMatrix3d offsetOf(const EntityTags& tags) {
  const auto moved = tags.optionalPoint(12);
  if (!moved) return {};
  return AcGeMatrix3d::translation(AcGeMatrix3d::planeToWorld(tags.normal()) * moved->asVector());
}

} // namespace

void painters::Dimension(Pen& pen) {
  const AcDbObjectId block = blockNamed(pen.database(), pen.tags().text(2));
  const auto* record = AcDbBlockTableRecord::cast(block.object());
  if (record && !record->entities().empty()) return pen.block(block, offsetOf(pen.tags()));
  if (!DrawLinearDimension(pen)) pen.leaveOut(L"没有图块的尺寸标注");
}

void painters::Table(Pen& pen) {
  const AcDbObjectId block = blockNamed(pen.database(), pen.tags().text(2));
  if (block.isNull()) return pen.leaveOut(L"没有图块的表格");
  const AcGeVector3d along = pen.tags().optionalPoint(11).value_or(AcGePoint3d(1, 0, 0)).asVector();
  const AcGeVector3d normal = pen.tags().normal();
  const AcGeVector3d x = along.isZeroLength() ? AcGeVector3d(1, 0, 0) : along.normal();
  AcGeMatrix3d matrix;
  matrix.setCoordSystem(pen.tags().point(10), x, normal.crossProduct(x), normal);
  pen.block(block, matrix);
}

} // namespace scene
