#include "host/db/AcDbBlockTable.h"

#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/BlockCycle.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"
#include "host/db/ExternalReferences.h"

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
  entity->setPaperSpace(isLayout() && !isModelSpace());
  m_entities.push_back(entity->objectId());
  for (auto& sub : entity->takeNewSubEntities()) {
    if (sub->layerId().isNull()) sub->setLayer(entity->layerId());
    AcDbEntity* added = sub.release();
    if (database()->addSubEntity(added, *entity) == Acad::eOk) added->close();
  }
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

namespace {

// Flags of a BLOCK.
constexpr int kAnonymous = 1;
constexpr int kExternal = 4;
constexpr int kOverlay = 8;
constexpr int kResolved = 32;

int flagsOf(const AcDbObjectId& begin) {
  const auto* mark = AcDbBlockBegin::cast(begin.object());
  return mark ? mark->flags() : 0;
}

} // namespace

bool AcDbBlockTableRecord::isFromExternalReference() const {
  return (flagsOf(m_begin) & (kExternal | kOverlay)) != 0;
}

bool AcDbBlockTableRecord::isFromOverlayReference() const {
  return (flagsOf(m_begin) & kOverlay) != 0;
}

AcGePoint3d AcDbBlockTableRecord::origin() const {
  const auto* begin = AcDbBlockBegin::cast(m_begin.object());
  return begin ? begin->basePoint() : m_newOrigin;
}

// The BLOCK of a block that is open for write, made where there is none; null outside a drawing.
AcDbBlockBegin* AcDbBlockTableRecord::beginToChange() {
  if (!database()) return nullptr;
  if (m_begin.isNull()) database()->completeBlock(*this);
  auto* begin = static_cast<AcDbBlockBegin*>(m_begin.object());
  return begin->open(AcDb::kForWrite, true) == Acad::eOk ? begin : nullptr;
}

Acad::ErrorStatus AcDbBlockTableRecord::setOrigin(const AcGePoint3d& origin) {
  if (!entity::isFinite(origin)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  if (!database()) {
    m_newOrigin = origin;
    return Acad::eOk;
  }
  AcDbObjectPointer<AcDbBlockBegin> begin(beginToChange());
  return begin ? begin->setBasePoint(origin) : Acad::eWasOpenForRead;
}

CString AcDbBlockTableRecord::comments() const {
  const auto* begin = AcDbBlockBegin::cast(m_begin.object());
  return begin ? begin->comments() : CString();
}

Acad::ErrorStatus AcDbBlockTableRecord::setComments(const CString& comments) {
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  if (!database()) return Acad::eNoDatabase;
  AcDbObjectPointer<AcDbBlockBegin> begin(beginToChange());
  return begin ? begin->setComments(comments) : Acad::eWasOpenForRead;
}

CString AcDbBlockTableRecord::pathName() const {
  const auto* begin = AcDbBlockBegin::cast(m_begin.object());
  return begin && isFromExternalReference() ? begin->xrefPath() : CString();
}

Acad::ErrorStatus AcDbBlockTableRecord::setPathName(const wchar_t* path) {
  const CString wanted = path ? path : L"";
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  if (!isFromExternalReference()) return wanted.IsEmpty() ? Acad::eOk : Acad::eNotApplicable;
  if (wanted.IsEmpty()) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  AcDbObjectPointer<AcDbBlockBegin> begin(beginToChange());
  return begin ? begin->setXrefPath(wanted) : Acad::eWasOpenForRead;
}

Acad::ErrorStatus AcDbBlockTableRecord::makeExternalReference(const CString& path, bool overlay) {
  if (isLayout() || !m_entities.empty() || !database()) return Acad::eNotApplicable;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  AcDbObjectPointer<AcDbBlockBegin> begin(beginToChange());
  if (!begin) return Acad::eWasOpenForRead;
  begin->setFlags(kExternal | kResolved | (overlay ? kOverlay : 0));
  return begin->setXrefPath(path);
}

AcDb::XrefStatus AcDbBlockTableRecord::xrefStatus() const {
  if (!database() || !isFromExternalReference()) return AcDb::kXrfNotAnXref;
  return database()->xrefs().status(objectId());
}

AcDbDatabase* AcDbBlockTableRecord::xrefDatabase() const {
  return database() && isFromExternalReference() ? database()->xrefs().drawing(objectId()) : nullptr;
}

const std::vector<AcDbObjectId>& AcDbBlockTableRecord::drawnEntities() const {
  const AcDbDatabase* other = xrefDatabase();
  const auto* space = other ? AcDbBlockTableRecord::cast(other->modelSpaceId().object()) : nullptr;
  return space ? space->entities() : m_entities;
}

// What the block contains goes and comes with it.
Acad::ErrorStatus AcDbBlockTableRecord::erase(bool erasing) {
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  if (!database() || isErased() == erasing) return AcDbObject::erase(erasing);
  if (erasing && (isLayout() || database()->isBlockReferenced(objectId()))) return Acad::eObjectIsReferenced;
  if (const auto status = AcDbObject::erase(erasing); status != Acad::eOk) return status;
  for (const AcDbObjectId& id : m_entities) database()->eraseWhole(*id.object(), erasing);
  for (const AcDbObjectId& id : {m_begin, m_end})
    if (id) database()->eraseWhole(*id.object(), erasing);
  return Acad::eOk;
}

// "*U" and its like ask for the next free number; a file's own "*U12" is taken as it comes.
bool AcDbBlockTableRecord::acceptsName(const CString& name) const {
  if (isValidSymbolName(name)) return true;
  if (name.GetLength() < 2 || name[0] != L'*' || database()) return false;
  const CString rest = name.Mid(1);
  return isValidSymbolName(rest) && CString(L"UDETXAudetxa").Find(rest[0]) >= 0;
}

Acad::ErrorStatus AcDbBlockTableRecord::beforeAdding(AcDbSymbolTable& table) {
  if (name().GetLength() == 2 && name()[0] == L'*') setNameAsRead(table.nextAnonymousName(name()));
  return Acad::eOk;
}

void AcDbBlockTableRecord::afterAdding() {
  database()->completeBlock(*this);
  auto* begin = static_cast<AcDbBlockBegin*>(m_begin.object());
  begin->open(AcDb::kForWrite, true);
  if (isAnonymous()) begin->setFlags(kAnonymous);
  begin->setBasePoint(m_newOrigin);
  begin->close();
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
