// The OBJECTS section, and how a record of any section becomes an object with its handle.
#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbSymbolTableRecord.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcDbUnknownObject.h"
#include "host/db/DxfRecordEditor.h"
#include "host/dxf/DrawingReader.h"
#include "host/dxf/RecordValues.h"

const AcRxClass* dxf::DrawingReader::classOfRecord() {
  const auto [entry, isNew] = m_classes.try_emplace(m_scanner.type(), nullptr);
  if (isNew) entry->second = AcRxClass::findByDxfName(m_scanner.type());
  return entry->second;
}

// What is no entity of a class that the host makes is an entity all the same. The marks of a block are none.
AcDbEntity* dxf::DrawingReader::makeEntity() {
  const AcRxClass* type = classOfRecord();
  const bool isMark = type == AcDbBlockBegin::desc() || type == AcDbBlockEnd::desc();
  if (!type || isMark || !type->isDerivedFrom(AcDbEntity::desc())) return new AcDbUnknownEntity;
  auto* made = static_cast<AcDbEntity*>(type->create());
  return made ? made : new AcDbUnknownEntity;
}

AcDbObject* dxf::DrawingReader::makeObject() {
  const AcRxClass* type = classOfRecord();
  if (!type || !type->isDerivedFrom(AcDbObject::desc()) || type->isDerivedFrom(AcDbEntity::desc()) ||
      type->isDerivedFrom(AcDbSymbolTableRecord::desc()))
    return new AcDbUnknownObject;
  auto* made = static_cast<AcDbObject*>(type->create());
  return made ? made : new AcDbUnknownObject;
}

AcDbEntity* dxf::DrawingReader::readEntity(const AcDbObjectId& owner) {
  AcDbEntity* entity = makeEntity();
  m_database.addAcDbObject(entity, owner);
  entity->close();
  decodeInto(*entity);
  adopt(*entity);
  return entity;
}

void dxf::DrawingReader::readObjects() {
  while (nextRecord() && !atSectionEnd()) {
    AcDbObject* object = makeObject();
    m_database.addToObjects(object, {});
    object->close();
    decodeInto(*object);
    adopt(*object);
    if (m_database.namedObjectsDictionaryId().isNull() && AcDbDictionary::cast(object))
      m_database.setNamedObjectsDictionaryId(object->objectId());
  }
}

// Numbers that are none are mended in the record itself, so that no file of ours holds one.
DxfRecord dxf::DrawingReader::currentRecord() const {
  const auto& bad = m_scanner.badReals();
  if (bad.empty()) return DxfRecord::partOf(m_text, m_scanner.recordText());
  std::string text;
  std::size_t next = 0;
  for (std::size_t i = 0; i < m_scanner.tags().size(); ++i) {
    const DxfTag& tag = m_scanner.tags()[i];
    const bool isBad = next < bad.size() && bad[next] == i;
    text += DxfRecordEditor::tag(tag.code, isBad ? "0.0" : tag.value);
    if (!isBad) continue;
    ++next;
    m_context.repaired(tag, quoted(L"“%s”不是有限的数，已改为 0.0", shown(tag.value)));
  }
  return DxfRecord::own(std::move(text));
}

void dxf::DrawingReader::decodeInto(AcDbObject& object) {
  if (m_scanner.badReals().empty())
    object.setRecord(currentRecord(), m_scanner.tags(), m_context);
  else
    object.setRecord(currentRecord(), m_context);
}

void dxf::DrawingReader::adopt(AcDbObject& object, int handleCode) {
  const DxfTag* tag = headTag(m_scanner.tags(), handleCode);
  if (!tag) {
    if (m_database.form().subclassMarkers()) {
      ++m_withoutHandle;
      object.invalidateRecord();
    }
    return;
  }
  if (!object.handle().isNull()) return;
  const AcDbHandle handle = AcDbHandle::fromHex(tag->value);
  if (m_database.giveHandle(object, handle)) return;
  m_context.repaired(
      *tag, quoted(handle.isNull() ? L"“%s”不是有效的句柄，已换新句柄" : L"句柄 %s 重复，后一个已换新句柄",
                   shown(tag->value)));
  object.invalidateRecord();
}
