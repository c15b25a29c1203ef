// Entities of a drawing by place: what selection prompts and ssget modes look up. The space searched is model
// space. Results are in drawing order.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/ge/AcGePoint3d.h"
#include "host/ge/Box2d.h"

#include <optional>
#include <vector>

class AcDbEntity;

namespace ed {

// Not erased, not invisible, and on a layer that is neither off nor frozen. Only such entities can be
// selected by place; a locked layer doesn't matter.
bool IsDrawn(const AcDbEntity& entity);

AcDbObjectId CurrentSpace(const AcDbDatabase& database);

// Every entity of every space, also those that are not drawn.
std::vector<AcDbObjectId> AllEntities(const AcDbDatabase& database);
// Without those that acedSetEntityHidden left out.
std::vector<AcDbObjectId> DrawnEntities(const AcDbDatabase& database);
std::vector<AcDbObjectId> EntitiesInWindow(const AcDbDatabase& database, const ge::Box2d& window,
                                           bool crossing);
// The nearest entity within the aperture, the upper one of two as near; without an aperture it reaches over
// 1/500 of the drawing's size.
AcDbObjectId EntityAt(const AcDbDatabase& database, const AcGePoint3d& point, std::optional<double> aperture);
AcDbObjectId LastEntity(const AcDbDatabase& database);

} // namespace ed
