#include "host/scene/DrawOrder.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"

#include <algorithm>

namespace scene {
namespace {

const AcDbObject* tableOf(const AcDbBlockTableRecord& block) {
  const auto* dictionary = AcDbDictionary::cast(block.extensionDictionary().object());
  AcDbObjectId id;
  if (!dictionary || dictionary->getAt(L"ACAD_SORTENTS", id) != Acad::eOk || id.isErased()) return nullptr;
  return id.object();
}

// The table gives entities handles to sort by; who isn't in it sorts by its own.
std::vector<AcDbObjectId> sorted(const AcDbBlockTableRecord& block, const AcDbObject& table) {
  std::unordered_map<AcDbHandle, AcDbHandle> keys;
  bool inside = false;
  AcDbHandle entity;
  const auto all = table.record().tags();
  for (const DxfTag& tag : dxfOwnTags(all)) {
    if (tag.code == 100) inside = true;
    if (inside && tag.code == 331) entity = AcDbHandle::fromHex(tag.value);
    if (inside && tag.code == 5) keys[entity] = AcDbHandle::fromHex(tag.value);
  }
  std::vector<AcDbObjectId> ids = block.entities();
  if (keys.empty()) return ids;
  const auto keyOf = [&](const AcDbObjectId& id) {
    const auto found = keys.find(id.handle());
    return found == keys.end() ? id.handle() : found->second;
  };
  std::stable_sort(ids.begin(), ids.end(),
                   [&](const AcDbObjectId& a, const AcDbObjectId& b) { return keyOf(a) < keyOf(b); });
  return ids;
}

} // namespace

const std::vector<AcDbObjectId>& DrawOrder::of(const AcDbBlockTableRecord& block) {
  const auto [found, isNew] = m_sorted.try_emplace(block.objectId());
  if (isNew)
    if (const AcDbObject* table = tableOf(block)) found->second = sorted(block, *table);
  return found->second.empty() ? block.entities() : found->second;
}

} // namespace scene
