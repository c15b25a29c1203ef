// INSERT: a block in its place, in rows and columns, perhaps clipped, and its attributes.
#include "host/db/AcDbBlockReference.h"
#include "host/db/MissingReference.h"
#include "host/scene/BlockClip.h"
#include "host/scene/SceneBuilder.h"
#include "host/scene/WorldDrawPen.h"
#include "host/scene/painters/Painters.h"

#include <algorithm>
#include <cmath>

void scene::painters::Insert(Pen& pen) {
  const auto* reference = AcDbBlockReference::cast(&pen.entity());
  if (!reference) return;
  if (entity::missingReferenceOf(*reference)) {
    WorldDrawPen(pen).entity();
    return pen.leaveOut(L"外部参照未载入");
  }
  const EntityTags& tags = pen.tags();
  const AcGeMatrix3d transform = reference->blockTransform();
  const long long columns = std::clamp<long long>(tags.integer(70, 1), 1, 32767);
  const long long rows = std::clamp<long long>(tags.integer(71, 1), 1, 32767);
  const AcGeMatrix3d turn = AcGeMatrix3d::planeToWorld(tags.normal()) *
                            AcGeMatrix3d::rotation(reference->rotation(), AcGeVector3d(0, 0, 1));
  const double across = tags.real(44);
  const double up = tags.real(45);
  Pen inner = pen;
  ClipToBlock(inner, transform);
  int copies = 0;
  for (long long row = 0; row < rows && !pen.builder().isExhausted(); ++row) {
    for (long long column = 0; column < columns && !pen.builder().isExhausted(); ++column) {
      if (++copies > pen.limits().copies) {
        pen.leaveOut(L"行列太多的插入，其后的未画");
        row = rows;
        break;
      }
      const AcGeVector3d offset =
          turn * AcGeVector3d(static_cast<double>(column) * across, static_cast<double>(row) * up, 0);
      inner.block(reference->blockTableRecord(), AcGeMatrix3d::translation(offset) * transform);
    }
  }
  for (const AcDbObjectId& id : pen.entity().subEntities()) pen.subEntity(id);
}
