#include "plugin/tools/SZPMultiEntityData.h"

#include <unordered_map>

namespace {

using Entities = CZPArray<AcDbEntity*, AcDbEntity*>;

std::unordered_map<const AcDbEntity*, int>& Holders() {
  static std::unordered_map<const AcDbEntity*, int> holders;
  return holders;
}

void Hold(const Entities& entities) {
  for (const auto* entity : entities) ++Holders()[entity];
}

// Whether that was the last to hold it.
bool Release(const AcDbEntity* entity) {
  const auto found = Holders().find(entity);
  if (found == Holders().end() || --found->second > 0) return false;
  Holders().erase(found);
  return true;
}

void CloseAll(Entities& entities) {
  for (auto* entity : entities)
    if (Release(entity)) entity->close();
  entities.RemoveAll();
}

} // namespace

SZPMultiEntityData::SZPMultiEntityData(const SZPMultiEntityData& other) {
  CopyFrom(other);
}

SZPMultiEntityData& SZPMultiEntityData::operator=(const SZPMultiEntityData& other) {
  if (this == &other) return *this;
  LetGo();
  CopyFrom(other);
  return *this;
}

SZPMultiEntityData::~SZPMultiEntityData() {
  LetGo();
}

void SZPMultiEntityData::CopyFrom(const SZPMultiEntityData& other) {
  Entities.Copy(other.Entities);
  SubEntities.Copy(other.SubEntities);
  Colors.Copy(other.Colors);
  ObjectIds = other.ObjectIds;
  Origin = other.Origin;
  Position = other.Position;
  Rotation = other.Rotation;
  Hold(Entities);
  Hold(SubEntities);
}

void SZPMultiEntityData::LetGo() {
  for (const auto* entity : Entities) Release(entity);
  for (const auto* entity : SubEntities) Release(entity);
}

void SZPMultiEntityData::HoldEntity(AcDbEntity* entity, int colour) {
  Entities.Add(entity);
  Colors.Add(colour);
  ++Holders()[entity];
}

void SZPMultiEntityData::HoldPart(AcDbEntity* part) {
  SubEntities.Add(part);
  ++Holders()[part];
}

void SZPMultiEntityData::CloseEntities() {
  CloseAll(Entities);
  CloseAll(SubEntities);
}
