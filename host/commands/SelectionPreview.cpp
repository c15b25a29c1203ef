#include "host/commands/SelectionPreview.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcGiWorldDraw.h"

namespace commands {

std::function<void(AcGiWorldDraw&, const AcGePoint3d&)>
PreviewThrough(std::vector<AcDbObjectId> ids, std::function<AcGeMatrix3d(const AcGePoint3d&)> matrixAt) {
  constexpr std::size_t kMost = 2000;
  if (ids.size() > kMost) ids.resize(kMost);
  return
      [ids = std::move(ids), matrixAt = std::move(matrixAt)](AcGiWorldDraw& draw, const AcGePoint3d& cursor) {
        draw.pushModelTransform(matrixAt(cursor));
        for (const auto& id : ids) {
          const auto* entity = AcDbEntity::cast(id.object());
          if (entity && !entity->isErased()) entity->worldDraw(draw);
        }
        draw.popModelTransform();
      };
}

} // namespace commands
