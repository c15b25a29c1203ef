#include "host/ed/EntitySearch.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbLayerTable.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EntityHitTest.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace ed {
namespace {

constexpr double kApertureOfSize = 1.0 / 500;

// Looks at the entities where they stand, without opening them: a search touches all of a drawing, and one
// that somebody has open for writing must be found like any other.
template <typename Visit> void forEachDrawn(const AcDbDatabase& database, Visit visit) {
  const auto* space = AcDbBlockTableRecord::cast(CurrentSpace(database).object());
  if (!space) return;
  const auto* document = acDocManagerPtr()->document(&database);
  const auto isHidden = [&](const AcDbObjectId& id) {
    return document && document->edit().hidden.contains(id);
  };
  for (const auto& id : space->entities()) {
    const auto* entity = AcDbEntity::cast(id.object());
    if (entity && IsDrawn(*entity) && !isHidden(id)) visit(id, *entity);
  }
}

} // namespace

bool IsDrawn(const AcDbEntity& entity) {
  if (entity.isErased() || entity.visibility() != AcDb::kVisible) return false;
  const auto* layer = static_cast<const AcDbLayerTableRecord*>(entity.layerId().object());
  return !layer || (!layer->isOff() && !layer->isFrozen());
}

AcDbObjectId CurrentSpace(const AcDbDatabase& database) {
  return database.modelSpaceId();
}

std::vector<AcDbObjectId> AllEntities(const AcDbDatabase& database) {
  std::vector<AcDbObjectId> result;
  const auto* blocks = AcDbBlockTable::cast(database.blockTableId().object());
  if (!blocks) return result;
  for (const auto& blockId : blocks->records()) {
    const auto* block = AcDbBlockTableRecord::cast(blockId.object());
    if (!block || block->isErased() || !block->isLayout()) continue;
    std::copy_if(block->entities().begin(), block->entities().end(), std::back_inserter(result),
                 [](const AcDbObjectId& id) { return id.isValid() && !id.isErased(); });
  }
  return result;
}

std::vector<AcDbObjectId> DrawnEntities(const AcDbDatabase& database) {
  std::vector<AcDbObjectId> result;
  forEachDrawn(database, [&](const AcDbObjectId& id, const AcDbEntity&) { result.push_back(id); });
  return result;
}

std::vector<AcDbObjectId> EntitiesInWindow(const AcDbDatabase& database, const ge::Box2d& window,
                                           bool crossing) {
  std::vector<AcDbObjectId> result;
  WindowHitTest test(window, crossing);
  forEachDrawn(database, [&](const AcDbObjectId& id, const AcDbEntity& entity) {
    if (test.takes(entity)) result.push_back(id);
  });
  return result;
}

AcDbObjectId EntityAt(const AcDbDatabase& database, const AcGePoint3d& point,
                      std::optional<double> aperture) {
  DistanceHitTest test({point.x, point.y});
  AcDbObjectId nearest;
  double distance = std::numeric_limits<double>::infinity();
  forEachDrawn(database, [&](const AcDbObjectId& id, const AcDbEntity& entity) {
    const double own = test.distanceTo(entity);
    if (own > distance || own == std::numeric_limits<double>::infinity()) return;
    distance = own;
    nearest = id;
  });
  if (nearest.isNull()) return nearest;
  const auto& box = test.extents();
  const double reach =
      aperture ? *aperture : std::max(box.maxX - box.minX, box.maxY - box.minY) * kApertureOfSize;
  return distance <= reach ? nearest : AcDbObjectId();
}

AcDbObjectId LastEntity(const AcDbDatabase& database) {
  const auto* space = AcDbBlockTableRecord::cast(CurrentSpace(database).object());
  if (!space) return {};
  const auto& entities = space->entities();
  for (auto id = entities.rbegin(); id != entities.rend(); ++id) {
    const auto* entity = AcDbEntity::cast(id->object());
    if (entity && IsDrawn(*entity)) return *id;
  }
  return {};
}

} // namespace ed
