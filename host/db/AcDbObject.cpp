#include "host/db/AcDbObject.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/ExtendedData.h"
#include "host/db/SameName.h"
#include "host/db/resbuf.h"

#include <utility>

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbObject, AcRxObject)

namespace {

constexpr short kMaxReaders = 256;
constexpr std::size_t kMaxExtendedData = 16 * 1024;

// Size of extended data as the format counts it is the size of its values; the text is close and never less.
std::size_t extendedDataSize(const DxfRecord& record) {
  std::size_t size = 0;
  for (const DxfTag& tag : record.tags())
    if (tag.code >= 1000) size += tag.value.size() + 1;
  return size;
}

} // namespace

AcDbObject::~AcDbObject() = default;

Acad::ErrorStatus AcDbObject::open(AcDb::OpenMode mode, bool openErased) {
  if (m_erased && !openErased) return Acad::eWasErased;
  if (m_writing) return Acad::eWasOpenForWrite;
  if (mode == AcDb::kForRead || mode == AcDb::kForNotify) {
    if (m_readers >= kMaxReaders) return Acad::eAtMaxReaders;
    ++m_readers;
    return Acad::eOk;
  }
  if (m_readers > 0) return Acad::eWasOpenForRead;
  if (const auto* entity = AcDbEntity::cast(this)) {
    const auto* layer = AcDbLayerTableRecord::cast(entity->layerId().object());
    if (layer && layer->isLocked()) return Acad::eOnLockedLayer;
  }
  m_writing = true;
  m_changedWhileOpen = false;
  if (database()) database()->beforeChange(*this);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::close() {
  if (!m_stub) {
    delete this;
    return Acad::eOk;
  }
  if (m_writing) {
    m_writing = false;
    const bool changed = std::exchange(m_changedWhileOpen, false);
    if (changed) database()->afterChange(*this);
    database()->afterClose(*this);
    return Acad::eOk;
  }
  if (m_readers == 0) return Acad::eNotOpenForRead;
  --m_readers;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::upgradeOpen() {
  if (!m_stub || m_writing) return m_stub ? Acad::eWasOpenForWrite : Acad::eOk;
  if (m_readers == 0) return Acad::eNotOpenForRead;
  if (m_readers > 1) return Acad::eWasOpenForRead;
  m_readers = 0;
  const auto status = open(AcDb::kForWrite, m_erased);
  if (status != Acad::eOk) m_readers = 1;
  return status;
}

Acad::ErrorStatus AcDbObject::downgradeOpen() {
  if (!m_stub) return Acad::eOk;
  if (!m_writing) return Acad::eNotOpenForWrite;
  close();
  m_readers = 1;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::assertWriteEnabled() {
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  noteChange();
  m_fieldsChanged = true;
  m_implicit = false;
  return Acad::eOk;
}

void AcDbObject::noteChange() {
  const bool isFirst = !std::exchange(m_changedWhileOpen, true);
  if (isFirst && m_stub) database()->beforeFirstChange(*this);
}

void AcDbObject::takePlaceOf(AcDbObject& other) {
  m_stub = other.m_stub;
  m_owner = other.m_owner;
  m_erased = other.m_erased;
  m_implicit = other.m_implicit;
}

Acad::ErrorStatus AcDbObject::erase(bool erasing) {
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  if (m_erased == erasing) return Acad::eOk;
  noteChange();
  m_erased = erasing;
  if (database()) database()->afterErase(*this, erasing);
  return Acad::eOk;
}

const DxfRecord& AcDbObject::record() const {
  if (m_fieldsChanged || m_record.isEmpty()) {
    DxfRecordEditor editor(m_record, !database() || database()->form().subclassMarkers());
    dxfOutFields(editor);
    m_record = editor.finish();
    m_fieldsChanged = false;
  }
  return m_record;
}

void AcDbObject::setRecord(DxfRecord record, const DxfDecodeContext& context) {
  const auto tags = record.tags();
  setRecord(std::move(record), tags, context);
}

void AcDbObject::setRecord(DxfRecord record, DxfTags tags, const DxfDecodeContext& context) {
  m_record = std::move(record);
  m_fieldsChanged = false;
  dxfInFields(tags, context);
}

void AcDbObject::dxfInFields(DxfTags, const DxfDecodeContext&) {}

void AcDbObject::dxfOutFields(DxfRecordEditor&) const {}

void AcDbObject::dxfOutHead(DxfRecordEditor& editor, std::string_view type, int handleCode) const {
  const bool newRecord = m_record.isEmpty();
  editor.type(type);
  if (!m_stub) return; // no handle outside a drawing
  // Old drawings may go without handles: what was read without one stays without.
  const bool old = !database()->form().subclassMarkers();
  if (old && !newRecord && !editor.has(handleCode)) return;
  editor.handle(handleCode, handle());
  if (editor.subclassMarkers() && m_owner) writeOwner(editor, m_owner->handle);
}

// Drawings before R2000 do without owners.
void AcDbObject::writeOwner(DxfRecordEditor& editor, AcDbHandle owner) const {
  if (!database() || database()->form().version >= "AC1015")
    editor.handle(330, owner);
  else
    editor.handle(330, owner, owner);
}

AcDbObjectId AcDbObject::extensionDictionary() const {
  bool inDictionaryGroup = false;
  DxfTagReader reader(record().text());
  for (DxfTag tag; reader.next(tag) && tag.code < 1000;) {
    if (tag.code == 102) inDictionaryGroup = dxf::trimBlanks(tag.value) == "{ACAD_XDICTIONARY";
    if (!inDictionaryGroup || tag.code != 360) continue;
    AcDbObjectId id;
    if (database()) database()->getAcDbObjectId(id, false, AcDbHandle::fromHex(tag.value));
    return id;
  }
  return {};
}

void AcDbObject::setExtensionDictionary(const AcDbObjectId& dictionary) {
  DxfRecordEditor editor(record(), true);
  editor.group("{ACAD_XDICTIONARY",
               dictionary ? DxfRecordEditor::tag(360, dictionary.handle().toHex()) : std::string());
  m_record = editor.finish();
  noteChange();
  m_implicit = false;
}

Acad::ErrorStatus AcDbObject::createExtensionDictionary() {
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  if (!database()) return Acad::eNoDatabase;
  const AcDbObjectId before = extensionDictionary();
  if (before && !before.isErased()) return Acad::eAlreadyInDb;
  auto* dictionary = new AcDbDictionary;
  if (const auto status = database()->addToObjects(dictionary, objectId()); status != Acad::eOk) {
    delete dictionary;
    return status;
  }
  dictionary->close();
  setExtensionDictionary(dictionary->objectId());
  return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::releaseExtensionDictionary() {
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  AcDbObjectPointer<AcDbDictionary> dictionary(extensionDictionary(), AcDb::kForWrite);
  if (!dictionary) return Acad::eKeyNotFound;
  if (dictionary->numEntries() > 0) return Acad::eObjectIsReferenced;
  dictionary->erase();
  setExtensionDictionary({});
  return Acad::eOk;
}

resbuf* AcDbObject::xData(const wchar_t* application) const {
  std::vector<DxfTag> wanted;
  const std::string name = application ? dxf::encodeText(application) : std::string();
  bool take = false;
  DxfTagReader reader(record().text());
  for (DxfTag tag; reader.next(tag);) {
    if (tag.code < 1000) continue;
    if (tag.code == 1001) take = !application || dxf::sameName(dxf::trimBlanks(tag.value), name);
    if (take) wanted.push_back(tag);
  }
  return wanted.empty() ? nullptr : dxf::toResbuf(wanted).release();
}

Acad::ErrorStatus AcDbObject::setXData(const resbuf* chain) {
  if (!chain || chain->restype != 1001 || !chain->resval.rstring) return Acad::eInvalidInput;
  for (const resbuf* rb = chain; rb; rb = rb->rbnext)
    if (rb->restype < 1000 || rb->restype > 1071) return Acad::eInvalidInput;
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  const CString application = chain->resval.rstring;
  if (database()) {
    AcDbSymbolTable* applications = database()->tableOf("APPID");
    if (!applications || !applications->has(application)) return Acad::eRegappIdNotFound;
  }
  DxfRecord changed =
      dxf::withExtendedData(record(), dxf::encodeText(application), dxf::fromResbuf(chain->rbnext));
  if (changed.text().size() > kMaxExtendedData && extendedDataSize(changed) > kMaxExtendedData &&
      extendedDataSize(changed) > extendedDataSize(m_record))
    return Acad::eXdataSizeExceeded;
  m_record = std::move(changed);
  noteChange();
  m_implicit = false;
  return Acad::eOk;
}
