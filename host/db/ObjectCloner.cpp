#include "host/db/ObjectCloner.h"

#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcDbUnknownObject.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/RecordForm.h"
#include "host/db/RecordHead.h"
#include "host/db/RecordNames.h"

namespace {

constexpr int kMaxDictionaryDepth = 32;

CString folded(CString name) {
  name.MakeLower();
  return name;
}

template <typename Base, typename Unknown> Base* makeLike(const AcDbObject& source) {
  const std::unique_ptr<AcRxObject> made(source.isA()->create());
  if (!Base::cast(made.get())) return new Unknown;
  return static_cast<Base*>(const_cast<std::unique_ptr<AcRxObject>&>(made).release());
}

} // namespace

ObjectCloner::ObjectCloner(AcDbDatabase& from, AcDbDatabase& to, AcDbIdMapping& map,
                           AcDb::DuplicateRecordCloning duplicates)
    : m_from(from), m_to(to), m_map(map), m_duplicates(duplicates) {}

void ObjectCloner::note(const AcDbObject& source, const AcDbObjectId& copy, bool cloned, bool primary) {
  m_map.assign({source.objectId(), copy, cloned, primary});
  if (cloned) m_copies.push_back(copy);
}

// The source's record without its head, and with the names of the other drawing, where all that it names then
// is.
DxfRecord ObjectCloner::renamed(const AcDbObject& source) {
  const auto kind = dxf::recordKindOf(source);
  DxfRecord record = dxf::withoutHead(source.record());
  const bool ownBlock = dxf::ownsAnonymousBlock(record.type());
  if (isSameDrawing() && !ownBlock) return record;
  dxf::visitNames(record, kind, [&](std::string_view type, const DxfTag& tag) {
    const AcDbSymbolTable* table = m_from.tableOf(type);
    AcDbObjectId id;
    if (!table || table->getAt(dxf::decodeText(dxf::trimBlanks(tag.value)), id) != Acad::eOk) return;
    const auto& named = *static_cast<const AcDbSymbolTableRecord*>(id.object());
    // Within a drawing only the picture of a dimension gets a copy of its own.
    const auto* block = AcDbBlockTableRecord::cast(&named);
    if (!isSameDrawing() || (block && block->isAnonymous())) cloneTableRecord(named);
  });
  const auto changed =
      dxf::withNames(record, kind, [&](std::string_view type, const CString& name) -> std::optional<CString> {
        const auto found = m_names.find({std::string(type), folded(name)});
        return found == m_names.end() ? std::nullopt : std::optional(found->second);
      });
  if (changed) record = *changed;
  return dxf::inFormOf(record, m_from.form(), m_to.form());
}

AcDbEntity* ObjectCloner::makeEntity(const AcDbEntity& source) {
  auto* made = makeLike<AcDbEntity, AcDbUnknownEntity>(source);
  made->setRecord(renamed(source), DxfDecodeContext(m_to));
  return made;
}

Acad::ErrorStatus ObjectCloner::cloneEntity(const AcDbObjectId& id, const AcDbObjectId& blockId,
                                            bool primary) {
  const auto* source = AcDbEntity::cast(id.object());
  if (!source) return id.isNull() ? Acad::eNullObjectId : Acad::eNotThatKindOfClass;
  if (source->isErased()) return Acad::eWasErased;
  if (const AcDbObjectId done = m_map.valueOf(id); done && !done.isErased()) return Acad::eOk;
  std::unique_ptr<AcDbEntity> made(makeEntity(*source));
  AcDbObjectPointer<AcDbBlockTableRecord> block(blockId, AcDb::kForWrite);
  if (!block) return block.openStatus();
  if (const auto status = block->appendAcDbEntity(made.get()); status != Acad::eOk) return status;
  AcDbObjectPointer<AcDbEntity> copy(made.release());
  note(*source, copy->objectId(), true, primary);
  for (const AcDbObjectId& subId : source->subEntities()) {
    const auto* sub = AcDbEntity::cast(subId.object());
    if (!sub || sub->isErased()) continue;
    AcDbEntity* subCopy = makeEntity(*sub);
    m_to.addAcDbObject(subCopy, copy->objectId());
    subCopy->setPaperSpace(copy->isInPaperSpace());
    copy->addSubEntity(subCopy->objectId());
    note(*sub, subCopy->objectId(), true);
    cloneExtensionDictionary(*sub, *subCopy);
    subCopy->close();
  }
  copy->invalidateRecord();
  cloneExtensionDictionary(*source, *copy.object());
  return Acad::eOk;
}

Acad::ErrorStatus ObjectCloner::cloneContents(const AcDbBlockTableRecord& source, const AcDbObjectId& block) {
  // Copies of entities go into the list that is walked when a block is copied into itself.
  const std::vector<AcDbObjectId> ids = source.entities();
  for (const AcDbObjectId& id : ids) {
    if (id.isErased()) continue;
    if (const auto status = cloneEntity(id, block, false); status != Acad::eOk) return status;
  }
  return Acad::eOk;
}

void ObjectCloner::cloneExtensionDictionary(const AcDbObject& source, AcDbObject& copy) {
  const AcDbObjectId dictionary = source.extensionDictionary();
  if (!dictionary || dictionary.isErased()) return;
  copy.setExtensionDictionary(cloneObject(*dictionary.object(), copy.objectId()));
}

AcDbObjectId ObjectCloner::cloneObject(const AcDbObject& source, const AcDbObjectId& owner) {
  if (const AcDbObjectId done = m_map.valueOf(source.objectId())) return done;
  auto* made = makeLike<AcDbObject, AcDbUnknownObject>(source);
  made->setRecord(renamed(source), DxfDecodeContext(m_to));
  m_to.addToObjects(made, owner);
  const AcDbObjectId id = made->objectId();
  note(source, id, true);
  if (const auto* dictionary = AcDbDictionary::cast(&source)) {
    for (const AcDbDictionary::Entry& entry : std::vector(dictionary->entries())) {
      AcDbObjectId child;
      if (m_from.getAcDbObjectId(child, false, entry.handle) == Acad::eOk && !child.isErased())
        cloneObject(*child.object(), id);
    }
  }
  cloneExtensionDictionary(source, *made);
  made->close();
  return id;
}

AcDbObjectId ObjectCloner::cloneTableRecord(const AcDbSymbolTableRecord& source) {
  if (const AcDbObjectId done = m_map.valueOf(source.objectId())) return done;
  const auto* fromTable = AcDbSymbolTable::cast(source.ownerId().object());
  AcDbSymbolTable* table = fromTable ? m_to.tableOf(fromTable->recordType()) : nullptr;
  if (!table) return {};
  if (const auto* block = AcDbBlockTableRecord::cast(&source); block && block->isAnonymous())
    return cloneBlock(*block);
  AcDbObjectId there;
  if (table->getAt(source.name(), there) == Acad::eOk) {
    note(source, there, false);
    const auto* block = AcDbBlockTableRecord::cast(&source);
    if (m_duplicates != AcDb::kDrcReplace || (block && block->isLayout())) return there;
    if (block) {
      for (const AcDbObjectId& id : static_cast<AcDbBlockTableRecord*>(there.object())->entities())
        m_to.eraseWhole(*id.object());
      fillBlock(*block, there);
      return there;
    }
    AcDbObjectPointer<AcDbSymbolTableRecord> record(there, AcDb::kForWrite);
    if (!record) return there;
    const CString name = record->name();
    record->setRecord(renamed(source), DxfDecodeContext(m_to));
    record->setNameAsRead(name);
    record->invalidateRecord();
    m_copies.push_back(there);
    return there;
  }
  if (const auto* block = AcDbBlockTableRecord::cast(&source)) return cloneBlock(*block);
  std::unique_ptr<AcDbSymbolTableRecord> made(
      static_cast<AcDbSymbolTableRecord*>(table->recordClass()->create()));
  made->setRecord(renamed(source), DxfDecodeContext(m_to));
  AcDbObjectPointer<AcDbSymbolTable> open(table->objectId(), AcDb::kForWrite);
  if (!open || open->add(made.get()) != Acad::eOk) return {};
  AcDbObjectPointer<AcDbSymbolTableRecord> copy(made.release());
  note(source, copy->objectId(), true);
  cloneExtensionDictionary(source, *copy.object());
  return copy->objectId();
}

AcDbObjectId ObjectCloner::cloneBlock(const AcDbBlockTableRecord& source) {
  std::unique_ptr<AcDbBlockTableRecord> made(
      static_cast<AcDbBlockTableRecord*>(AcDbBlockTableRecord::desc()->create()));
  made->setRecord(renamed(source), DxfDecodeContext(m_to));
  // Anonymous names are numbers of one drawing and mean nothing in another.
  if (source.isAnonymous()) made->setNameAsRead(source.name().Left(2));
  AcDbObjectPointer<AcDbSymbolTable> table(m_to.blockTableId(), AcDb::kForWrite);
  if (!table || table->add(made.get()) != Acad::eOk) return {};
  AcDbObjectPointer<AcDbBlockTableRecord> copy(made.release());
  const AcDbObjectId id = copy->objectId();
  note(source, id, true);
  if (copy->name() != source.name()) m_names[{"BLOCK_RECORD", folded(source.name())}] = copy->name();
  copy.close();
  table.close();
  fillBlock(source, id);
  return id;
}

void ObjectCloner::fillBlock(const AcDbBlockTableRecord& source, const AcDbObjectId& copy) {
  auto* block = static_cast<AcDbBlockTableRecord*>(copy.object());
  const auto* from = AcDbBlockBegin::cast(source.blockBeginId().object());
  if (from) {
    AcDbObjectPointer<AcDbBlockBegin> begin(block->blockBeginId(), AcDb::kForWrite, true);
    if (begin) {
      begin->setBasePoint(from->basePoint());
      begin->setFlags(from->flags());
      begin->setXrefPath(from->xrefPath());
      begin->setComments(from->comments());
    }
  }
  cloneContents(source, copy);
}

// An object of a named dictionary, such as a multi-line style: what has its name there stands for it,
// otherwise it is copied to the same place.
AcDbObjectId ObjectCloner::clonePath(const AcDbObject& source, int depth) {
  if (const AcDbObjectId done = m_map.valueOf(source.objectId())) return done;
  if (source.objectId() == m_from.namedObjectsDictionaryId()) return m_to.namedObjectsDictionaryId();
  AcDbObjectId ownerId;
  if (depth > kMaxDictionaryDepth || source.isErased() ||
      m_from.getAcDbObjectId(ownerId, false, dxf::ownerIn(source.record().tags())) != Acad::eOk)
    return {};
  const auto* owner = AcDbDictionary::cast(ownerId.object());
  const AcDbDictionary::Entry* entry = owner ? owner->entryOf(source.handle()) : nullptr;
  if (!entry) return {};
  AcDbObjectPointer<AcDbDictionary> dictionary(clonePath(*owner, depth + 1), AcDb::kForWrite);
  if (!dictionary) return {};
  AcDbObjectId there;
  if (dictionary->getAt(entry->name, there) == Acad::eOk) {
    note(source, there, false);
    return there;
  }
  // Of a dictionary on the way only this one entry is wanted.
  if (AcDbDictionary::cast(&source)) {
    auto* shell = new AcDbDictionary;
    m_to.addToObjects(shell, dictionary->objectId());
    shell->close();
    dictionary->fileEntry({entry->name, shell->handle(), entry->hardOwner});
    note(source, shell->objectId(), false);
    return shell->objectId();
  }
  const AcDbObjectId copy = cloneObject(source, dictionary->objectId());
  dictionary->fileEntry({entry->name, copy.handle(), entry->hardOwner});
  return copy;
}

// What a handle in a copy is to be, by the kind of pointer that its group code makes it.
AcDbObjectId ObjectCloner::targetOf(AcDbHandle handle, int code) {
  AcDbObjectId source;
  if (m_from.getAcDbObjectId(source, false, handle) != Acad::eOk) return {};
  if (const AcDbObjectId copy = m_map.valueOf(source)) return copy;
  if (isSameDrawing()) return source;
  const bool isHard = (code >= 340 && code < 350) || (code >= 390 && code < 400);
  if (!isHard) return {};
  const AcDbObject& object = *source.object();
  if (const auto* record = AcDbSymbolTableRecord::cast(&object))
    return record->isErased() ? AcDbObjectId() : cloneTableRecord(*record);
  return AcDbEntity::cast(&object) ? AcDbObjectId() : clonePath(object, 0);
}

DxfRecord ObjectCloner::translated(const DxfRecord& record) {
  std::string text;
  const char* copied = record.text().data();
  bool inHead = true;
  bool inDictionaryGroup = false;
  bool inGroup = false;
  DxfTagReader reader(record.text());
  for (DxfTag tag; reader.next(tag);) {
    if (tag.code == 102) {
      inGroup = tag.value.starts_with("{");
      inDictionaryGroup = dxf::trimBlanks(tag.value) == "{ACAD_XDICTIONARY";
    }
    if (tag.code == 100) inHead = false;
    const bool isOwner = inHead && !inGroup && tag.code == 330;
    const bool isOwn = tag.code == 5 || tag.code == 105;
    if (dxf::valueKind(tag.code) != dxf::ValueKind::handle || isOwn || isOwner || inDictionaryGroup) continue;
    if (tag.code >= 320 && tag.code < 330) continue; // arbitrary handles are taken as they are
    const AcDbHandle before = AcDbHandle::fromHex(tag.value);
    if (before.isNull()) continue;
    const AcDbHandle after = targetOf(before, tag.code).handle();
    if (after == before || (after.isNull() && isSameDrawing())) continue;
    text.append(copied, tag.value.data());
    text += after.toHex();
    copied = tag.value.data() + tag.value.size();
    if (isOwner) inHead = false;
  }
  if (copied == record.text().data()) return record;
  text.append(copied, record.text().data() + record.text().size());
  return DxfRecord::own(std::move(text));
}

void ObjectCloner::translate() {
  const DxfDecodeContext context(m_to);
  // What a copy points to may have to be copied too, which makes the list longer.
  for (std::size_t i = 0; i < m_copies.size(); ++i) {
    AcDbObject& copy = *m_copies[i].object();
    const DxfRecord before = copy.record();
    const DxfRecord after = translated(before);
    if (after.text() != copy.record().text()) copy.setRecord(after, context);
  }
  m_copies.clear();
}
