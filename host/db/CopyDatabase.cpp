#include "host/db/CopyDatabase.h"

#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcDbUnknownObject.h"
#include "host/db/DxfDecodeContext.h"

#include <unordered_map>

namespace {

class DatabaseCopier {
 public:
  DatabaseCopier(const AcDbDatabase& from, AcDbDatabase& to) : m_from(from), m_to(to), m_context(to) {}

  void copy() {
    m_to.form() = m_from.form();
    m_to.header().setRecord(m_from.header().record(), m_context);
    for (const AcDbObjectId& id : m_from.tables())
      copyTable(*static_cast<const AcDbSymbolTable*>(id.object()));
    orderTables();
    for (const AcDbObjectId& id : m_from.tableOf("BLOCK_RECORD")->records())
      if (!id.isErased()) copyBlock(*static_cast<const AcDbBlockTableRecord*>(id.object()));
    for (const AcDbObjectId& id : m_from.objects())
      if (!id.isErased()) copyObject(*id.object());
    m_to.setNamedObjectsDictionaryId(copyOf(m_from.namedObjectsDictionaryId()));
    // Fields name what was copied later; names come first, as in a file.
    for (const auto& [source, made] : m_decodeLater) decode(*source, *made);
    moveForm();
    m_to.reserveHandle(AcDbHandle(m_from.handseed().value() - 1));
    m_to.setFileName(m_from.fileName());
    m_to.setModified(false);
  }

 private:
  AcDbObjectId copyOf(const AcDbObjectId& id) const {
    const auto found = m_copies.find(id);
    return found == m_copies.end() ? AcDbObjectId() : found->second;
  }

  void decode(const AcDbObject& source, AcDbObject& made) { made.setRecord(source.record(), m_context); }

  void adopt(const AcDbObject& source, AcDbObject& made) {
    made.setImplicit(source.isImplicit());
    m_copies[source.objectId()] = made.objectId();
  }

  // Tables are there from the beginning.
  void copyTable(const AcDbSymbolTable& source) {
    AcDbSymbolTable& table = *m_to.tableOf(source.recordType());
    m_to.giveHandle(table, source.handle());
    adopt(source, table);
    decode(source, table);
    table.setEndRecord(source.endRecord());
    for (const AcDbObjectId& id : source.records()) {
      if (id.isErased()) continue;
      const auto& from = *static_cast<const AcDbSymbolTableRecord*>(id.object());
      auto* record = static_cast<AcDbSymbolTableRecord*>(source.recordClass()->create());
      m_to.addAcDbObject(record, table.objectId(), from.handle());
      record->setNameAsRead(from.name());
      record->close();
      table.file(*record);
      adopt(from, *record);
      m_decodeLater.emplace_back(&from, record);
    }
  }

  void orderTables() {
    std::vector<AcDbObjectId> order;
    for (const AcDbObjectId& id : m_from.tables()) order.push_back(copyOf(id));
    m_to.tables() = std::move(order);
  }

  AcDbEntity& copyEntity(const AcDbEntity& source, const AcDbObjectId& owner) {
    auto* object = AcDbEntity::cast(source.isA()->create());
    auto* made = object ? object : new AcDbUnknownEntity;
    m_to.addAcDbObject(made, owner, source.handle());
    made->close();
    adopt(source, *made);
    made->setRank(source.rank());
    m_decodeLater.emplace_back(&source, made);
    for (const AcDbObjectId& id : source.subEntities()) {
      if (id.isErased()) continue;
      made->addSubEntity(
          copyEntity(*static_cast<const AcDbEntity*>(id.object()), made->objectId()).objectId());
    }
    return *made;
  }

  void copyBlock(const AcDbBlockTableRecord& source) {
    auto& block = *static_cast<AcDbBlockTableRecord*>(copyOf(source.objectId()).object());
    const auto mark = [&](const AcDbObjectId& id) {
      return copyEntity(*static_cast<const AcDbEntity*>(id.object()), block.objectId()).objectId();
    };
    if (source.blockBeginId()) block.setBegin(mark(source.blockBeginId()));
    for (const AcDbObjectId& id : source.entities())
      if (!id.isErased()) block.file(mark(id));
    if (source.blockEndId()) block.setEnd(mark(source.blockEndId()));
  }

  void copyObject(const AcDbObject& source) {
    auto* object = AcDbObject::cast(source.isA()->create());
    auto* made = object ? object : new AcDbUnknownObject;
    m_to.addToObjects(made, copyOf(source.ownerId()), source.handle());
    made->close();
    adopt(source, *made);
    m_decodeLater.emplace_back(&source, made);
  }

  void moveForm() {
    DrawingForm& form = m_to.form();
    for (DrawingForm::Stray& stray : form.strays) stray.object = copyOf(stray.object);
    std::erase_if(form.strays, [](const DrawingForm::Stray& stray) {
      using Place = DrawingForm::Stray::Place;
      return stray.object.isNull() && (stray.place == Place::behindRecord || stray.place == Place::behindEnd);
    });
    for (AcDbObjectId& id : form.blockOrder) id = copyOf(id);
    std::erase_if(form.blockOrder, [](const AcDbObjectId& id) { return id.isNull(); });
  }

  const AcDbDatabase& m_from;
  AcDbDatabase& m_to;
  DxfDecodeContext m_context;
  std::unordered_map<AcDbObjectId, AcDbObjectId> m_copies;
  std::vector<std::pair<const AcDbObject*, AcDbObject*>> m_decodeLater;
};

} // namespace

void copyDatabase(const AcDbDatabase& from, AcDbDatabase& to) {
  DatabaseCopier(from, to).copy();
}
