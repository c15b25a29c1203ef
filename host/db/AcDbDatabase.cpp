#include "host/db/AcDbDatabase.h"

#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbTables.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/ExternalReferences.h"
#include "host/db/NameReferences.h"
#include "host/db/RecordNames.h"

#include <algorithm>

std::vector<AcDbDatabase*>& AcDbDatabase::allDatabases() {
  static auto* const databases = new std::vector<AcDbDatabase*>; // outlives databases of every module
  return *databases;
}

bool AcDbObjectId::isErased() const {
  return m_stub && m_stub->object && m_stub->object->isErased();
}

AcDbHostApplicationServices* acdbHostApplicationServices() {
  static AcDbHostApplicationServices services;
  return &services;
}

AcDbDatabase::AcDbDatabase(bool buildDefaultDrawing)
    : m_undo(std::make_unique<UndoHistory>(*this)), m_xrefs(std::make_unique<ExternalReferences>(*this)) {
  allDatabases().push_back(this);
  m_header = new AcDbHeader;
  // The header is an object so that undo covers it, but it has no handle of the drawing's: it is filed under
  // 0.
  m_stubs.push_back({AcDbHandle(), this, m_header});
  m_header->setStub(&m_stubs.back());
  createTables();
  if (buildDefaultDrawing) completeStandardEntries();
}

AcDbDatabase::~AcDbDatabase() {
  sayGoodbye();
  std::erase(allDatabases(), this);
  if (acdbHostApplicationServices()->workingDatabase() == this)
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
  for (AcDbStub& stub : m_stubs) {
    delete stub.object;
    stub.object = nullptr;
  }
}

// Symbol tables:

template <typename Table> AcDbObjectId AcDbDatabase::tableId() const {
  for (const AcDbObjectId& id : m_tables)
    if (id.object()->isKindOf(Table::desc())) return id;
  return {};
}

template <typename Table> Acad::ErrorStatus AcDbDatabase::openTable(Table*& table, AcDb::OpenMode mode) {
  return acdbOpenObject(table, tableId<Table>(), mode);
}

Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbBlockTable*& table, AcDb::OpenMode mode) {
  return openTable(table, mode);
}
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbDimStyleTable*& table, AcDb::OpenMode mode) {
  return openTable(table, mode);
}
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbLayerTable*& table, AcDb::OpenMode mode) {
  return openTable(table, mode);
}
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbLinetypeTable*& table, AcDb::OpenMode mode) {
  return openTable(table, mode);
}
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbRegAppTable*& table, AcDb::OpenMode mode) {
  return openTable(table, mode);
}
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbTextStyleTable*& table, AcDb::OpenMode mode) {
  return openTable(table, mode);
}

AcDbObjectId AcDbDatabase::blockTableId() const {
  return tableId<AcDbBlockTable>();
}
AcDbObjectId AcDbDatabase::dimStyleTableId() const {
  return tableId<AcDbDimStyleTable>();
}
AcDbObjectId AcDbDatabase::layerTableId() const {
  return tableId<AcDbLayerTable>();
}
AcDbObjectId AcDbDatabase::linetypeTableId() const {
  return tableId<AcDbLinetypeTable>();
}
AcDbObjectId AcDbDatabase::regAppTableId() const {
  return tableId<AcDbRegAppTable>();
}
AcDbObjectId AcDbDatabase::textStyleTableId() const {
  return tableId<AcDbTextStyleTable>();
}

AcDbSymbolTable* AcDbDatabase::tableOf(std::string_view type) const {
  for (const AcDbObjectId& id : m_tables) {
    auto* table = static_cast<AcDbSymbolTable*>(id.object());
    if (table->recordType() == type) return table;
  }
  return nullptr;
}

namespace {

template <typename T> AcDbSymbolTable* makeTable() {
  return new T;
}

struct TableKind {
  const char* recordType;
  AcDbSymbolTable* (*make)();
};

// In the order in which a file has them.
constexpr TableKind kTables[] = {
    {"VPORT", makeTable<AcDbViewportTable>},     {"LTYPE", makeTable<AcDbLinetypeTable>},
    {"LAYER", makeTable<AcDbLayerTable>},        {"STYLE", makeTable<AcDbTextStyleTable>},
    {"VIEW", makeTable<AcDbViewTable>},          {"UCS", makeTable<AcDbUCSTable>},
    {"APPID", makeTable<AcDbRegAppTable>},       {"DIMSTYLE", makeTable<AcDbDimStyleTable>},
    {"BLOCK_RECORD", makeTable<AcDbBlockTable>},
};

AcDbObjectId findRecord(const AcDbSymbolTable* table, const wchar_t* name) {
  AcDbObjectId id;
  if (table) table->getAt(name, id);
  return id;
}

template <typename Record> AcDbObjectId addStandard(AcDbDatabase& db, const char* type, const wchar_t* name) {
  AcDbSymbolTable* table = db.tableOf(type);
  auto* record = new Record;
  db.addAcDbObject(record, table->objectId());
  record->setNameAsRead(name);
  record->setImplicit(true);
  table->file(*record);
  record->close();
  return record->objectId();
}

} // namespace

// Tables without a record of their own, which a reader gives them as it meets them.
void AcDbDatabase::createTables() {
  for (const TableKind& kind : kTables) {
    AcDbSymbolTable* table = kind.make();
    table->setRecordType(kind.recordType);
    m_stubs.push_back({AcDbHandle(), this, table});
    table->setStub(&m_stubs.back());
    table->setImplicit(true);
    m_tables.push_back(table->objectId());
  }
}

AcDbObjectId AcDbDatabase::modelSpaceId() const {
  return findRecord(tableOf("BLOCK_RECORD"), ACDB_MODEL_SPACE);
}
AcDbObjectId AcDbDatabase::paperSpaceId() const {
  return findRecord(tableOf("BLOCK_RECORD"), ACDB_PAPER_SPACE);
}

Acad::ErrorStatus AcDbDatabase::registerApplication(const CString& name) {
  AcDbObjectPointer<AcDbRegAppTable> table(regAppTableId(), AcDb::kForWrite);
  if (!table) return table.openStatus();
  if (table->has(name)) return Acad::eOk;
  auto* record = new AcDbRegAppTableRecord;
  auto status = record->setName(name);
  if (status == Acad::eOk) status = table->add(record);
  if (status == Acad::eOk)
    record->close();
  else
    delete record;
  return status;
}

std::vector<CString> AcDbDatabase::completeStandardEntries() {
  std::vector<CString> added;
  if (!m_loading) endLoading(); // the tables' handles come before those of their entries
  const auto ensure = [&](const char* type, const wchar_t* name, auto make) {
    if (!findRecord(tableOf(type), name).isNull()) return;
    make(*this, type, name);
    CString what;
    what.Format(L"%s %s", CString::FromUtf8(type), name);
    added.push_back(what);
  };
  ensure("LTYPE", L"ByBlock", addStandard<AcDbLinetypeTableRecord>);
  ensure("LTYPE", L"ByLayer", addStandard<AcDbLinetypeTableRecord>);
  ensure("LTYPE", L"Continuous", addStandard<AcDbLinetypeTableRecord>);
  ensure("LAYER", L"0", addStandard<AcDbLayerTableRecord>);
  ensure("STYLE", L"Standard", addStandard<AcDbTextStyleTableRecord>);
  ensure("APPID", L"ACAD", addStandard<AcDbRegAppTableRecord>);
  // A drawing may do with dimension styles of its own.
  if (tableOf("DIMSTYLE")->records().empty())
    ensure("DIMSTYLE", L"Standard", addStandard<AcDbDimStyleTableRecord>);
  ensure("BLOCK_RECORD", ACDB_MODEL_SPACE, addStandard<AcDbBlockTableRecord>);
  ensure("BLOCK_RECORD", ACDB_PAPER_SPACE, addStandard<AcDbBlockTableRecord>);
  if (m_namedObjects.isNull()) {
    auto* root = new AcDbDictionary;
    addToObjects(root, {});
    root->setImplicit(true);
    root->close();
    m_namedObjects = root->objectId();
    std::rotate(m_objects.begin(), m_objects.end() - 1, m_objects.end());
  }
  return added;
}

void AcDbDatabase::completeBlocks() {
  for (const AcDbObjectId& id : tableOf("BLOCK_RECORD")->records()) {
    auto* block = AcDbBlockTableRecord::cast(id.object());
    if (block && !block->isErased()) completeBlock(*block);
  }
}

void AcDbDatabase::completeBlock(AcDbBlockTableRecord& block) {
  if (block.blockBeginId() && block.blockEndId()) return;
  const AcDbObjectId layerZero = findRecord(tableOf("LAYER"), L"0");
  const auto mark = [&](AcDbEntity* entity) {
    entity->setLayer(layerZero);
    addAcDbObject(entity, block.objectId());
    entity->setPaperSpace(block.isLayout() && !block.isModelSpace());
    entity->setImplicit(true);
    entity->close();
    return entity->objectId();
  };
  if (block.blockBeginId().isNull()) block.setBegin(mark(new AcDbBlockBegin));
  if (block.blockEndId().isNull()) block.setEnd(mark(new AcDbBlockEnd));
}

// Dictionaries and objects:

Acad::ErrorStatus AcDbDatabase::getNamedObjectsDictionary(AcDbDictionary*& dictionary, AcDb::OpenMode mode) {
  return acdbOpenObject(dictionary, m_namedObjects, mode);
}

Acad::ErrorStatus AcDbDatabase::addAcDbObject(AcDbObject* object, const AcDbObjectId& owner,
                                              AcDbHandle handle) {
  if (!object) return Acad::eNullObjectPointer;
  if (object->database()) return Acad::eAlreadyInDb;
  if (handle.isNull() && !m_loading) handle = AcDbHandle(m_nextHandle);
  if (!handle.isNull() && hasHandle(handle)) return Acad::eDuplicateKey;
  m_stubs.push_back({AcDbHandle(), this, object});
  object->setStub(&m_stubs.back());
  giveHandle(*object, handle);
  object->setOwnerId(owner);
  object->invalidateRecord(); // handle and owner belong in it
  m_undo->recordAppended(*object);
  object->openAsNew();
  afterAppend(*object);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::addSubEntity(AcDbEntity* sub, AcDbEntity& parent) {
  if (!sub) return Acad::eNullObjectPointer;
  if (parent.database() != this) return Acad::eWrongDatabase;
  const auto add = [&](AcDbEntity* entity) {
    if (entity->layerId().isNull()) entity->setLayer(parent.layerId());
    const auto status = addAcDbObject(entity, parent.objectId());
    if (status != Acad::eOk) return status;
    entity->setPaperSpace(parent.isInPaperSpace());
    parent.addSubEntity(entity->objectId());
    return status;
  };
  if (const auto status = add(sub); status != Acad::eOk) return status;
  const auto& subs = parent.subEntities();
  if (std::none_of(subs.begin(), subs.end(), [](const AcDbObjectId& id) {
        return !id.isErased() && AcDbSequenceEnd::cast(id.object());
      })) {
    auto* end = new AcDbSequenceEnd;
    if (const auto status = add(end); status != Acad::eOk) return status;
    end->close();
  }
  parent.invalidateRecord();
  return Acad::eOk;
}

void AcDbDatabase::eraseWhole(AcDbObject& object, bool erasing) {
  if (object.isErased() == erasing) return;
  m_undo->recordBefore(object);
  object.setErasedFlag(erasing);
  afterErase(object, erasing);
  if (const auto* entity = AcDbEntity::cast(&object))
    for (const AcDbObjectId& id : entity->subEntities()) eraseWhole(*id.object(), erasing);
}

bool AcDbDatabase::isBlockReferenced(const AcDbObjectId& block) const {
  return std::any_of(m_stubs.begin(), m_stubs.end(), [&](const AcDbStub& stub) {
    const auto* reference = AcDbBlockReference::cast(stub.object);
    return reference && !reference->isErased() && reference->blockTableRecord() == block;
  });
}

bool AcDbDatabase::giveHandle(AcDbObject& object, AcDbHandle handle) {
  AcDbStub* stub = object.objectId().stub();
  if (handle.isNull() || !stub->handle.isNull() || !m_byHandle.insert(handle, stub)) return false;
  stub->handle = handle;
  reserveHandle(handle);
  return true;
}

void AcDbDatabase::endLoading() {
  m_loading = false;
  for (AcDbStub& stub : m_stubs)
    if (stub.handle.isNull() && stub.object != m_header) giveHandle(*stub.object, AcDbHandle(m_nextHandle));
}

Acad::ErrorStatus AcDbDatabase::addToObjects(AcDbObject* object, const AcDbObjectId& owner,
                                             AcDbHandle handle) {
  const auto status = addAcDbObject(object, owner, handle);
  if (status == Acad::eOk) m_objects.push_back(object->objectId());
  return status;
}

Acad::ErrorStatus AcDbDatabase::getAcDbObjectId(AcDbObjectId& id, bool, const AcDbHandle& handle) const {
  if (handle.isNull()) return Acad::eNullHandle;
  AcDbStub* const found = m_byHandle.find(handle);
  if (!found) return Acad::eUnknownHandle;
  id = AcDbObjectId(found);
  return Acad::eOk;
}

void AcDbDatabase::reserveHandle(AcDbHandle handle) {
  // The top of the 64-bit range is left alone: no counter must run over.
  if (handle.value() >= m_nextHandle && handle.value() < (~std::uint64_t{0} >> 1))
    m_nextHandle = handle.value() + 1;
}

// Settings:

AcDbObjectId AcDbDatabase::clayer() const {
  const auto name = m_header->text("$CLAYER");
  const AcDbSymbolTable* layers = tableOf("LAYER");
  AcDbObjectId id = findRecord(layers, name ? name->GetString() : L"0");
  return id.isNull() ? findRecord(layers, L"0") : id;
}

Acad::ErrorStatus AcDbDatabase::setClayer(const AcDbObjectId& layer) {
  if (layer.isNull() || layer.database() != this) return Acad::eNullObjectId;
  if (layer.isErased()) return Acad::eWasErased;
  const auto* record = AcDbLayerTableRecord::cast(layer.object());
  if (!record) return Acad::eNotThatKindOfClass;
  if (record->isFrozen()) return Acad::eInvalidInput;
  if (clayer() == layer && m_header->has("$CLAYER")) return Acad::eOk;
  AcDbObjectPointer<AcDbHeader> header(headerId(), AcDb::kForWrite);
  if (!header) return header.openStatus();
  return header->setVariable("$CLAYER", DxfRecordEditor::tag(8, dxf::encodeText(record->name())));
}

// State:

// By the records, so that what the host keeps without understanding it takes the new name too.
void AcDbDatabase::beforeRename(const AcDbObjectId& record, const CString& newName) {
  const auto& named = *static_cast<const AcDbSymbolTableRecord*>(record.object());
  const auto* table = AcDbSymbolTable::cast(named.ownerId().object());
  if (!table || named.name().IsEmpty()) return;
  const CString oldName = named.name();
  const auto change = [&](std::string_view type, const CString& name) -> std::optional<CString> {
    const bool isMeant = type == table->recordType() && name.CompareNoCase(oldName) == 0;
    return isMeant ? std::optional(newName) : std::nullopt;
  };
  for (const AcDbStub& stub : m_stubs) {
    if (stub.object == &named) continue;
    const auto renamed = dxf::withNames(stub.object->record(), dxf::recordKindOf(*stub.object), change);
    if (!renamed) continue;
    m_undo->recordBefore(*stub.object);
    stub.object->replaceRecordText(*renamed);
  }
}

void AcDbDatabase::afterRename(const AcDbObjectId& record) {
  if (m_loading) return; // names in records are those of the file
  for (const AcDbStub& stub : m_stubs)
    if (namesRecord(*stub.object, record)) stub.object->invalidateRecord();
}

void AcDbDatabase::beforeChange(AcDbObject& object) {
  m_undo->recordBefore(object);
}

// Opening:

Acad::ErrorStatus acdbOpenObject(AcDbObject*& object, const AcDbObjectId& id, AcDb::OpenMode mode,
                                 bool openErased) {
  object = nullptr;
  if (!id.isValid()) return Acad::eNullObjectId;
  const auto status = id.object()->open(mode, openErased);
  if (status == Acad::eOk) object = id.object();
  return status;
}
