// Checks of what ties objects together: handles, owners, dictionaries, ends of runs, cycles, pointers.
#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AuditChecks.h"
#include "host/db/BlockCycle.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/RecordHead.h"

#include <algorithm>
#include <unordered_map>

namespace audit {

void Report::add(AuditCheck check, const AcDbObjectId& object, const CString& text, bool repaired) {
  m_findings.push_back({check, object, text, repaired});
}

void Report::change(AcDbObject& object, const DxfRecord& record) const {
  m_database.undo().recordBefore(object);
  object.setRecord(record, DxfDecodeContext(m_database));
  m_database.afterChange(object);
}

bool isLive(const AcDbObject& object) {
  if (object.isErased() || object.ownerId().isErased()) return false;
  return object.objectId() != object.database()->headerId();
}

CString nameOf(const AcDbObject& object) {
  const auto* entity = AcDbEntity::cast(&object);
  const CString type = entity ? entity->dxfName() : CString::FromUtf8(object.record().type());
  return type + L" " + object.handle().ascii();
}

namespace {

AcDbHandle seedOf(const AcDbDatabase& database) {
  const auto seed = database.header().text("$HANDSEED");
  return seed ? AcDbHandle::fromHex(seed->ToUtf8()) : AcDbHandle();
}

bool setSeed(AcDbDatabase& database) {
  AcDbObjectPointer<AcDbHeader> header(database.headerId(), AcDb::kForWrite);
  return header &&
         header->setVariable("$HANDSEED", DxfRecordEditor::tag(5, database.handseed().toHex())) == Acad::eOk;
}

} // namespace

// The seed is that of the file, so only what the file held counts; saving takes care of what was added.
void checkHandleSeed(Report& report) {
  AcDbDatabase& database = report.database();
  if (!database.form().subclassMarkers() || !database.header().has("$HANDSEED")) return;
  AcDbHandle highest;
  for (const AcDbStub& stub : database.stubs())
    if (!stub.object->isErased() && !stub.object->isImplicit() &&
        stub.handle < database.form().seedAfterReading)
      highest = std::max(highest, stub.handle);
  const AcDbHandle seed = seedOf(database);
  if (seed > highest) return;
  const bool done = report.repairs() && setSeed(database);
  report.add(AuditCheck::handleSeed, database.headerId(),
             L"下一个句柄（$HANDSEED " + seed.ascii() + L"）不大于已用的最大句柄 " + highest.ascii(), done);
}

void raiseHandleSeed(AcDbDatabase& database) {
  const AcDbHandle seed = seedOf(database);
  if (!seed.isNull() && seed < database.handseed()) setSeed(database);
}

void checkRootDictionary(Report& report) {
  AcDbDatabase& database = report.database();
  AcDbObject* root = database.namedObjectsDictionaryId().object();
  if (!database.form().subclassMarkers() || !root || !root->isImplicit()) return;
  if (database.form().sections.empty()) return; // never was in a file
  if (report.repairs()) {
    database.undo().recordBefore(*root);
    root->setImplicit(false);
    database.afterChange(*root);
  }
  report.add(AuditCheck::rootDictionary, root->objectId(), L"缺少根字典", report.repairs());
}

void checkSequenceEnds(Report& report) {
  AcDbDatabase& database = report.database();
  for (std::size_t i = 0; i < database.stubs().size(); ++i) {
    auto* entity = AcDbEntity::cast(database.stubs()[i].object);
    if (!entity || !isLive(*entity) || !entity->hasSubEntities()) continue;
    const auto& subs = entity->subEntities();
    if (std::any_of(subs.begin(), subs.end(), [](const AcDbObjectId& id) {
          return !id.isErased() && AcDbSequenceEnd::cast(id.object());
        }))
      continue;
    if (report.repairs()) {
      auto* end = new AcDbSequenceEnd;
      end->setLayer(entity->layerId());
      database.addAcDbObject(end, entity->objectId());
      end->setPaperSpace(entity->isInPaperSpace());
      entity->addSubEntity(end->objectId());
      end->close();
    }
    report.add(AuditCheck::sequenceEnd, entity->objectId(), nameOf(*entity) + L" 的从属实体之后缺少 SEQEND",
               report.repairs());
  }
}

// An insertion that makes its block contain itself shows nothing, so that nothing is lost with it.
void checkBlockCycles(Report& report) {
  AcDbDatabase& database = report.database();
  for (const AcDbStub& stub : database.stubs()) {
    const auto* reference = AcDbBlockReference::cast(stub.object);
    const auto* owner = reference ? AcDbBlockTableRecord::cast(reference->ownerId().object()) : nullptr;
    if (!owner || owner->isLayout() || !isLive(*reference)) continue;
    if (!blockContains(reference->blockTableRecord(), owner->objectId())) continue;
    if (report.repairs()) database.eraseWhole(*stub.object);
    report.add(AuditCheck::blockCycle, reference->objectId(),
               L"块“" + owner->name().Left(40) + L"”直接或间接包含自身，" + nameOf(*reference) + L" 应删除",
               report.repairs());
  }
}

namespace {

// Which dictionary has an object, by handle.
std::unordered_map<std::uint64_t, AcDbHandle> ownersByDictionary(const AcDbDatabase& database) {
  std::unordered_map<std::uint64_t, AcDbHandle> owners;
  for (const AcDbStub& stub : database.stubs()) {
    if (stub.object->isErased()) continue;
    if (const auto* dictionary = AcDbDictionary::cast(stub.object))
      for (const auto& entry : dictionary->entries()) owners.try_emplace(entry.handle.value(), stub.handle);
    const AcDbObjectId extension = stub.object->extensionDictionary();
    if (extension) owners.try_emplace(extension.handle().value(), stub.handle);
  }
  return owners;
}

bool isThere(const AcDbDatabase& database, AcDbHandle handle) {
  AcDbObjectId id;
  return database.getAcDbObjectId(id, false, handle) == Acad::eOk && !id.isErased();
}

} // namespace

void checkOwners(Report& report) {
  AcDbDatabase& database = report.database();
  if (database.form().version < "AC1015") return; // older files do without
  const auto owners = ownersByDictionary(database);
  for (const AcDbStub& stub : database.stubs()) {
    AcDbObject& object = *stub.object;
    if (!isLive(object) || object.isImplicit() || object.record().isEmpty()) continue;
    const AcDbHandle named = dxf::ownerIn(object.record().tags());
    AcDbHandle wanted = object.ownerId().handle();
    if (wanted.isNull()) {
      // Of the objects of dictionaries the file alone says whose they are.
      const auto found = owners.find(stub.handle.value());
      if (AcDbSymbolTable::cast(&object) || object.objectId() == database.namedObjectsDictionaryId())
        continue;
      if (!named.isNull() && isThere(database, named)) continue;
      if (found != owners.end()) wanted = found->second;
    }
    if (named == wanted && !wanted.isNull()) continue;
    const bool can = report.repairs() && !wanted.isNull();
    if (can) {
      DxfRecordEditor editor(object.record(), true);
      editor.type(object.record().type());
      editor.handle(dxf::handleCodeOf(object.record().type()), stub.handle);
      editor.handle(330, wanted);
      report.change(object, editor.finish());
    }
    report.add(AuditCheck::owner, object.objectId(),
               nameOf(object) + L" 的所有者句柄 " + named.ascii() + L" 不符，应为 " +
                   (wanted.isNull() ? CString(L"（未知）") : wanted.ascii()),
               can);
  }
}

namespace {

// Entries whose object is not there.
void checkDictionary(Report& report, AcDbDictionary& dictionary) {
  for (const auto& entry : std::vector(dictionary.entries())) {
    if (isThere(report.database(), entry.handle)) continue;
    bool done = false;
    if (report.repairs()) {
      AcDbObjectPointer<AcDbDictionary> open(dictionary.objectId(), AcDb::kForWrite);
      done = open && open->remove(entry.name) == Acad::eOk;
    }
    report.add(AuditCheck::danglingEntry, dictionary.objectId(),
               nameOf(dictionary) + L" 的条目“" + entry.name.Left(40) + L"”指向不存在的对象", done);
  }
}

} // namespace

void checkPointers(Report& report) {
  AcDbDatabase& database = report.database();
  for (std::size_t i = 0; i < database.stubs().size(); ++i) {
    AcDbObject& object = *database.stubs()[i].object;
    if (!isLive(object)) continue;
    if (auto* dictionary = AcDbDictionary::cast(&object)) {
      checkDictionary(report, *dictionary);
      continue;
    }
    bool inExtension = false;
    for (const DxfTag& tag : object.record().tags()) {
      if (tag.code >= 1000) break;
      if (tag.code == 102) inExtension = dxf::trimBlanks(tag.value) == "{ACAD_XDICTIONARY";
      if (!inExtension || tag.code != 360 || isThere(database, AcDbHandle::fromHex(tag.value))) continue;
      if (report.repairs()) {
        DxfRecordEditor editor(object.record(), true);
        editor.group("{ACAD_XDICTIONARY", {});
        report.change(object, editor.finish());
      }
      report.add(AuditCheck::danglingPointer, object.objectId(), nameOf(object) + L" 的扩展字典不存在",
                 report.repairs());
      break;
    }
  }
}

} // namespace audit
