#include "host/db/AcDbBlockTable.h"

#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/BlockCycle.h"
#include "host/db/DxfRecordEditor.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbBlockTableRecord, AcDbSymbolTableRecord, "BLOCK_RECORD")
ACRX_DXF_DEFINE_MEMBERS(AcDbBlockTable, AcDbSymbolTable, "")

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbEntity* entity) {
  if (!entity) return Acad::eNullObjectPointer;
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  if (!database()) return Acad::eNoDatabase;
  if (entity->database()) return Acad::eAlreadyInDb;
  if (const auto* reference = AcDbBlockReference::cast(entity))
    if (blockContains(reference->blockTableRecord(), objectId())) return Acad::eSelfReference;
  if (entity->layerId().isNull()) {
    // A new entity stands on the current layer unless its maker said otherwise.
    if (const auto status = entity->setLayer(database()->clayer()); status != Acad::eOk) return status;
  }
  const auto status = database()->addAcDbObject(entity, objectId());
  if (status != Acad::eOk) return status;
  entity->setRank(static_cast<std::uint32_t>(database()->objectCount()));
  entity->setPaperSpace(isPaperSpace());
  m_entities.push_back(entity->objectId());
  database()->afterChange(*entity);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity) {
  const auto status = appendAcDbEntity(entity);
  if (status == Acad::eOk) id = entity->objectId();
  return status;
}

bool AcDbBlockTableRecord::isAnonymous() const {
  return !name().IsEmpty() && name()[0] == L'*' && !isLayout();
}

bool AcDbBlockTableRecord::isLayout() const {
  return isModelSpace() || name().Left(12).CompareNoCase(ACDB_PAPER_SPACE) == 0;
}

bool AcDbBlockTableRecord::isModelSpace() const {
  return name().CompareNoCase(ACDB_MODEL_SPACE) == 0;
}

bool AcDbBlockTableRecord::isPaperSpace() const {
  return name().CompareNoCase(ACDB_PAPER_SPACE) == 0;
}

bool AcDbBlockTableRecord::isFromExternalReference() const {
  const auto* begin = AcDbBlockBegin::cast(m_begin.object());
  return begin && (begin->flags() & 4) != 0;
}

AcGePoint3d AcDbBlockTableRecord::origin() const {
  const auto* begin = AcDbBlockBegin::cast(m_begin.object());
  return begin ? begin->basePoint() : AcGePoint3d();
}

void AcDbBlockTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  // The flags of a block stand in its BLOCK, and its record has none.
  dxfOutHead(editor, "BLOCK_RECORD");
  editor.subclass("AcDbSymbolTableRecord");
  editor.subclass("AcDbBlockTableRecord");
  editor.text(2, name());
}

void AcDbBlockTableRecordIterator::start(bool atBeginning, bool skipErased) {
  const auto& entities = m_block.entities();
  m_at = atBeginning || entities.empty() ? 0 : entities.size() - 1;
  while (!done() && skipErased && entities[m_at].isErased()) m_at = atBeginning ? m_at + 1 : m_at - 1;
}

void AcDbBlockTableRecordIterator::step(bool forward, bool skipErased) {
  const auto& entities = m_block.entities();
  do {
    m_at = forward ? m_at + 1 : m_at - 1; // below 0 wraps beyond the end
  } while (!done() && skipErased && entities[m_at].isErased());
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntityId(AcDbObjectId& id) const {
  if (done()) return Acad::eOutOfRange;
  id = m_block.entities()[m_at];
  return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntity(AcDbEntity*& entity, AcDb::OpenMode mode,
                                                          bool openErased) const {
  AcDbObjectId id;
  entity = nullptr;
  if (const auto status = getEntityId(id); status != Acad::eOk) return status;
  return acdbOpenObject(entity, id, mode, openErased);
}
