// INSERT: a block in its place, in rows and columns, perhaps clipped, and its attributes.
#include "host/db/AcDbBlockReference.h"
#include "host/db/MissingReference.h"
#include "host/scene/BlockClip.h"
#include "host/scene/SceneBuilder.h"
#include "host/scene/WorldDrawPen.h"
#include "host/scene/painters/Painters.h"

#include <algorithm>

namespace scene {
namespace {

// The block in rows and columns, which are turned with the insertion.
void drawCopies(Pen& pen, const AcDbBlockReference& reference, const AcGeMatrix3d& transform, int rows,
                int columns) {
  const AcGeMatrix3d turn = AcGeMatrix3d::planeToWorld(reference.normal()) *
                            AcGeMatrix3d::rotation(reference.rotation(), AcGeVector3d(0, 0, 1));
  const double across = pen.tags().real(44);
  const double up = pen.tags().real(45);
  int copies = 0;
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      if (pen.builder().isExhausted()) return;
      if (++copies > pen.limits().copies) return pen.leaveOut(L"行列太多的插入，其后的未画");
      const AcGeVector3d offset = turn * AcGeVector3d(column * across, row * up, 0);
      pen.block(reference.blockTableRecord(), AcGeMatrix3d::translation(offset) * transform);
    }
  }
}

} // namespace

void painters::Insert(Pen& pen) {
  const auto* reference = AcDbBlockReference::cast(&pen.entity());
  if (!reference) return;
  if (entity::missingReferenceOf(*reference)) {
    WorldDrawPen(pen).entity();
    return pen.leaveOut(L"外部参照未载入");
  }
  const AcGeMatrix3d transform = reference->blockTransform();
  const int rows = std::max(reference->rows(), 1);
  const int columns = std::max(reference->columns(), 1);
  Pen inner = pen;
  ClipToBlock(inner, transform);
  if (rows == 1 && columns == 1)
    inner.block(reference->blockTableRecord(), transform);
  else
    drawCopies(inner, *reference, transform, rows, columns);
  for (const AcDbObjectId& id : pen.entity().subEntities()) pen.subEntity(id);
}

} // namespace scene
