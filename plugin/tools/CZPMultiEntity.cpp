#include "plugin/tools/CZPMultiEntity.h"

#include <algorithm>
#include <cmath>

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/ed/ArxDbgUtils.h"
#include "plugin/base/Tolerance.h"
#include "plugin/graph/Screen.h"
#include "plugin/layers/CZPLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/LayerService.h"

namespace {

constexpr double kFullTurn = 6.283185307179586; // 2 pi

int SchemeColour(const AcDbEntity& entity) {
  CString identifier;
  if (!ZP::GetKOrLayer(entity.layer(), identifier)) return 0;
  const auto* layer = CZPManagerLayer::GetInstance()->GetLayer(identifier);
  return layer ? layer->GetColorIndex() : 0;
}

void Transform(SZPMultiEntityData& group, const AcGeMatrix3d& matrix) {
  for (auto* entity : group.Entities) entity->transformBy(matrix);
  for (auto* entity : group.SubEntities) entity->transformBy(matrix);
}

// 0 to below a full turn.
double Normalized(double angle) {
  if (std::fabs(angle) > 1000 * kFullTurn) angle = std::fmod(angle, kFullTurn);
  while (ZP::GreaterOrEqual(angle, kFullTurn)) angle -= kFullTurn;
  while (ZP::Less(angle, 0.0)) angle += kFullTurn;
  return angle;
}

} // namespace

CZPMultiEntity::CZPMultiEntity(const CZPMultiEntity& other) : AcDbEntity() {
  Groups.Copy(other.Groups);
}

CZPMultiEntity& CZPMultiEntity::operator=(const CZPMultiEntity& other) {
  if (this != &other) Groups.Copy(other.Groups);
  return *this;
}

CZPMultiEntity::~CZPMultiEntity() {
  Close(-1);
}

// --- indexes ---

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::CheckIndex(int index) const {
  if (Groups.GetSize() == 0) return eNoGroups;
  return index < -1 || index >= Groups.GetSize() ? eBadIndex : eOk;
}

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::CheckPlaceIndex(int index) const {
  return index < 0 || index > Groups.GetSize() ? eBadIndex : eOk;
}

template <class Work> CZPMultiEntity::MultiEntityStatus CZPMultiEntity::ForEachGroup(int index, Work work) {
  if (const auto status = CheckIndex(index); status != eOk) return status;
  const int first = index == -1 ? 0 : index;
  const int last = index == -1 ? GetSize() - 1 : index;
  for (int i = first; i <= last; ++i) {
    if (const MultiEntityStatus status = work(Groups[i]); status != eOk) return status;
  }
  return eOk;
}

int CZPMultiEntity::GetSize() {
  return static_cast<int>(Groups.GetSize());
}

// --- composing ---

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::AddEntityToGroup(AcDbEntity* entity, int index) {
  if (index < 0) return eBadIndex;
  if (!entity) return eFailed;
  while (Groups.GetSize() <= index) Groups.Add(SZPMultiEntityData());
  auto& group = Groups[index];
  const int colour = SchemeColour(*entity);
  if (const auto* reference = AcDbBlockReference::cast(entity)) {
    std::vector<AcDbEntity*> parts;
    if (reference->explode(parts) == Acad::eOk) {
      for (auto* part : parts) {
        part->setColorIndex(colour);
        group.HoldPart(part);
      }
    } else if (auto* clone = AcDbEntity::cast(entity->clone())) {
      group.HoldPart(clone);
    }
  }
  group.HoldEntity(entity, colour);
  return eOk;
}

// --- placing ---

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::SetGroupOrigin(const AcGePoint3d& origin, int index) {
  if (const auto status = CheckPlaceIndex(index); status != eOk) return status;
  auto& group = Groups[index];
  if (origin.isEqualTo(group.Origin)) return eOk;
  Transform(group, AcGeMatrix3d::translation(group.Origin - origin));
  group.Origin = origin;
  return eOk;
}

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::SetPosition(const AcGePoint3d& position, int index) {
  if (const auto status = CheckPlaceIndex(index); status != eOk) return status;
  auto& group = Groups[index];
  if (position.isEqualTo(group.Position)) return eOk;
  Transform(group, AcGeMatrix3d::translation(position - group.Position));
  group.Position = position;
  return eOk;
}

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::SetRotation(double angle, int index) {
  if (const auto status = CheckPlaceIndex(index); status != eOk) return status;
  auto& group = Groups[index];
  if (!std::isfinite(angle)) return eFailed;
  angle = Normalized(angle);
  if (ZP::IsEqual(angle, group.Rotation, 0.001)) return eOk;
  Transform(group, AcGeMatrix3d::rotation(angle - group.Rotation, AcGeVector3d::kZAxis, group.Position));
  group.Rotation = angle;
  return eOk;
}

AcGePoint3d CZPMultiEntity::GetPosition(int index) {
  return CheckPlaceIndex(index) == eOk ? Groups[index].Position : AcGePoint3d();
}

double CZPMultiEntity::GetRotation(int index) {
  return CheckPlaceIndex(index) == eOk ? Groups[index].Rotation : 0.0;
}

// --- committing ---

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::CommitGroup(SZPMultiEntityData& group, int index) {
  for (auto* entity : group.Entities) {
    if (ArxDbgUtils::addToCurrentSpace(entity) == Acad::eOk) {
      group.ObjectIds.append(entity->objectId());
      continue;
    }
    const int added = std::min<int>(group.ObjectIds.length(), static_cast<int>(group.Entities.GetSize()));
    for (int i = 0; i < added; ++i) group.Entities[i]->erase();
    Close(index);
    return eFailed;
  }
  return eOk;
}

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::AddtoCurrentSpace(int index) {
  const auto status = ForEachGroup(index, [&](auto& group) { return CommitGroup(group, index); });
  if (status != eOk) return status;
  Close(index);
  ZP::FlushGraphics();
  return eOk;
}

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::GetEntitysObjectID(AcArray<AcDbObjectId>& ids, int index) {
  ids.setLogicalLength(0);
  return ForEachGroup(index, [&](auto& group) {
    ids.append(group.ObjectIds);
    return eOk;
  });
}

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::Close(int index) {
  return ForEachGroup(index, [](auto& group) {
    group.CloseEntities();
    return eOk;
  });
}

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::RemoveGroupEntity(int index) {
  if (const auto status = Close(index); status != eOk) return status;
  return ForEachGroup(index, [](auto& group) {
    group.ObjectIds.setLogicalLength(0);
    group.Origin = group.Position = AcGePoint3d();
    group.Rotation = 0.0;
    return eOk;
  });
}

CZPMultiEntity::MultiEntityStatus CZPMultiEntity::RemoveGroup(int index) {
  if (const auto status = Close(index); status != eOk) return status;
  if (index == -1)
    Groups.SetSize(0);
  else
    Groups.RemoveAt(index);
  return eOk;
}

// --- drawing ---

Adesk::Boolean CZPMultiEntity::subWorldDraw(AcGiWorldDraw* worldDraw) {
  for (auto& group : Groups) {
    for (int i = 0; i < group.Entities.GetSize(); ++i) {
      const auto* entity = group.Entities[i];
      if (AcDbBlockReference::cast(entity)) continue; // its parts are drawn
      worldDraw->subEntityTraits().setColor(i < group.Colors.GetSize() ? group.Colors[i] : 0);
      entity->worldDraw(*worldDraw);
    }
    for (const auto* part : group.SubEntities) {
      worldDraw->subEntityTraits().setColor(part->colorIndex());
      part->worldDraw(*worldDraw);
    }
  }
  return Adesk::kTrue;
}
