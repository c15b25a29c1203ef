#include "host/commands/SelectionPreview.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcGiWorldDraw.h"

namespace commands {

std::function<void(AcGiWorldDraw&, const AcGePoint3d&)>
PreviewThrough(std::vector<AcDbObjectId> ids, std::function<AcGeMatrix3d(const AcGePoint3d&)> matrixAt) {
  return PreviewThroughAll(std::move(ids), [matrixAt = std::move(matrixAt)](const AcGePoint3d& cursor) {
    return std::vector{matrixAt(cursor)};
  });
}

std::function<void(AcGiWorldDraw&, const AcGePoint3d&)>
PreviewThroughAll(std::vector<AcDbObjectId> ids,
                  std::function<std::vector<AcGeMatrix3d>(const AcGePoint3d&)> matricesAt) {
  return [ids = std::move(ids), matricesAt = std::move(matricesAt)](AcGiWorldDraw& draw,
                                                                    const AcGePoint3d& cursor) {
    std::size_t room = 2000;
    for (const AcGeMatrix3d& matrix : matricesAt(cursor)) {
      if (room == 0) return;
      draw.pushModelTransform(matrix);
      for (const auto& id : ids) {
        if (room == 0) break;
        --room;
        const auto* entity = AcDbEntity::cast(id.object());
        if (entity && !entity->isErased()) entity->worldDraw(draw);
      }
      draw.popModelTransform();
    }
  };
}

} // namespace commands
