#include "host/db/Purge.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbSymbolTable.h"
#include "host/db/DxfText.h"
#include "host/db/RecordNames.h"

#include <unordered_map>
#include <unordered_set>

namespace {

// The block in which an object stands; null for what stands in none.
AcDbObjectId blockOf(const AcDbObject& object) {
  AcDbObjectId owner = object.ownerId();
  if (const auto* parent = AcDbEntity::cast(owner.object())) owner = parent->ownerId();
  return AcDbBlockTableRecord::cast(owner.object()) ? owner : AcDbObjectId();
}

// The blocks that a record names or points to, its owner left out.
void addBlocksOf(const AcDbDatabase& database, const AcDbObject& object, std::vector<AcDbObjectId>& blocks) {
  dxf::visitNames(object.record(), dxf::recordKindOf(object), [&](std::string_view type, const DxfTag& tag) {
    AcDbObjectId id;
    if (type == "BLOCK_RECORD" &&
        database.tableOf(type)->getAt(dxf::decodeText(dxf::trimBlanks(tag.value)), id) == Acad::eOk)
      blocks.push_back(id);
  });
  bool inHead = true;
  for (const DxfTag& tag : object.record().tags()) {
    if (tag.code == 100) inHead = false;
    if (inHead || dxf::valueKind(tag.code) != dxf::ValueKind::handle) continue;
    AcDbObjectId id;
    if (database.getAcDbObjectId(id, false, AcDbHandle::fromHex(tag.value)) == Acad::eOk &&
        AcDbBlockTableRecord::cast(id.object()))
      blocks.push_back(id);
  }
}

} // namespace

std::vector<AcDbObjectId> acdbUnusedBlocks(const AcDbDatabase& database, PurgeBlocks which) {
  std::unordered_map<AcDbObjectId, std::vector<AcDbObjectId>> inside; // of a block: those that it uses
  std::vector<AcDbObjectId> open;
  for (const AcDbStub& stub : database.stubs()) {
    const AcDbObject& object = *stub.object;
    if (object.isErased()) continue;
    const AcDbObjectId block = blockOf(object);
    const auto* record = AcDbBlockTableRecord::cast(block.object());
    if (record && (block.isErased() || record->blockBeginId() == object.objectId())) continue;
    const bool isInBlock = record && !record->isLayout();
    // A block's own record points at layouts and insertions, never at what it contains.
    if (AcDbBlockTableRecord::cast(&object)) continue;
    addBlocksOf(database, object, isInBlock ? inside[block] : open);
  }
  const auto& blocks = database.tableOf("BLOCK_RECORD")->records();
  for (const AcDbObjectId& id : blocks) {
    const auto& block = *static_cast<const AcDbBlockTableRecord*>(id.object());
    if (block.isLayout() || block.isFromExternalReference()) open.push_back(id);
  }
  std::unordered_set<AcDbObjectId> used;
  while (!open.empty()) {
    const AcDbObjectId id = open.back();
    open.pop_back();
    if (!used.insert(id).second) continue;
    if (const auto found = inside.find(id); found != inside.end())
      open.insert(open.end(), found->second.begin(), found->second.end());
  }
  std::vector<AcDbObjectId> unused;
  for (const AcDbObjectId& id : blocks) {
    const auto& block = *static_cast<const AcDbBlockTableRecord*>(id.object());
    if (block.isErased() || used.contains(id)) continue;
    if (which == PurgeBlocks::all || block.isAnonymous()) unused.push_back(id);
  }
  return unused;
}

std::size_t acdbPurgeBlocks(AcDbDatabase& database, PurgeBlocks which) {
  const auto unused = acdbUnusedBlocks(database, which);
  // Contents first, so that no block is in use by one that goes with it.
  for (const AcDbObjectId& id : unused)
    for (const AcDbObjectId& entity : static_cast<const AcDbBlockTableRecord*>(id.object())->entities())
      database.eraseWhole(*entity.object());
  std::size_t erased = 0;
  for (const AcDbObjectId& id : unused) {
    AcDbObjectPointer<AcDbBlockTableRecord> block(id, AcDb::kForWrite);
    if (block && block->erase() == Acad::eOk) ++erased;
  }
  return erased;
}
