#include "plugin/graph/DragEntities.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/ed/EdPrompts.h"
#include "plugin/graph/Screen.h"

namespace {

using OpenEntity = AcDbObjectPointer<AcDbEntity>;

// Leaves the entities out of the picture while they are shown where the cursor is.
class Hidden {
 public:
  explicit Hidden(const AcArray<AcDbObjectId>& ids) : m_ids(ids) { Redraw(ZP::kHideEntity); }
  ~Hidden() { Redraw(ZP::kShowEntity); }
  Hidden(const Hidden&) = delete;
  Hidden& operator=(const Hidden&) = delete;

 private:
  void Redraw(ZP::RedrawMode mode) {
    for (const AcDbObjectId& id : m_ids) ZP::EntityRedraw(id, mode);
  }
  const AcArray<AcDbObjectId>& m_ids;
};

ed::Answer AskPlace(const AcArray<AcDbObjectId>& ids, const AcGePoint3d& point) {
  const Hidden hidden(ids);
  ed::Question question{L"指定位置:", {}, RSG_NONULL, {}};
  question.preview = [&](AcGiWorldDraw& draw, const AcGePoint3d& cursor) {
    draw.pushModelTransform(AcGeMatrix3d::translation(cursor - point));
    for (const AcDbObjectId& id : ids)
      if (const OpenEntity entity(id, AcDb::kForRead); entity) entity->worldDraw(draw);
    draw.popModelTransform();
  };
  return ed::AskPoint(question);
}

} // namespace

int ZP::DragGenEntity(const AcArray<AcDbObjectId>& ids, const AcGePoint3d& point, bool generated) {
  if (ids.isEmpty()) return 0;
  const ed::Answer place = AskPlace(ids, point);
  if (!place.hasValue() && !generated) return 0;
  bool moved = place.hasValue();
  for (const AcDbObjectId& id : ids) {
    const OpenEntity entity(id, AcDb::kForWrite);
    if (!entity)
      moved = false;
    else if (!place.hasValue())
      entity->erase();
    else if (entity->transformBy(AcGeMatrix3d::translation(place.point - point)) != Acad::eOk)
      moved = false;
  }
  return moved ? 1 : 0;
}
