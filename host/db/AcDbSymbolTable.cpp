#include "host/db/AcDbSymbolTable.h"

#include "host/afx/LetterCase.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/DxfRecordEditor.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbSymbolTable, AcDbObject)

namespace {

std::wstring folded(std::wstring_view name) {
  std::wstring key(name);
  for (wchar_t& c : key) c = afx::ToLower(c);
  return key;
}

} // namespace

Acad::ErrorStatus AcDbSymbolTable::getAt(const wchar_t* name, AcDbObjectId& id, bool getErased) const {
  const std::wstring key = folded(name);
  const auto entry = m_byName.find(key);
  if (entry == m_byName.end()) return Acad::eKeyNotFound;
  AcDbObjectId erased;
  for (const AcDbObjectId& candidate : entry->second) {
    const auto* record = static_cast<const AcDbSymbolTableRecord*>(candidate.object());
    if (folded(record->name().View()) != key) continue;
    if (!record->isErased()) { // of several that a damaged file gave one name, the first counts
      id = candidate;
      return Acad::eOk;
    }
    if (erased.isNull()) erased = candidate;
  }
  if (erased.isNull()) return Acad::eKeyNotFound;
  if (!getErased) return Acad::eWasErased;
  id = erased;
  return Acad::eOk;
}

bool AcDbSymbolTable::has(const wchar_t* name) const {
  AcDbObjectId id;
  return getAt(name, id) == Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbSymbolTableRecord* record) {
  if (!record) return Acad::eNullObjectPointer;
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  if (!database()) return Acad::eNoDatabase;
  if (record->database()) return Acad::eAlreadyInDb;
  if (!record->isKindOf(recordClass())) return Acad::eNotThatKindOfClass;
  if (record->name().IsEmpty()) return Acad::eInvalidName;
  if (const auto status = record->beforeAdding(*this); status != Acad::eOk) return status;
  if (has(record->name())) return Acad::eDuplicateRecordName;
  const auto status = database()->addAcDbObject(record, objectId());
  if (status != Acad::eOk) return status;
  file(*record);
  assertWriteEnabled(); // the table counts its entries
  record->afterAdding();
  database()->afterChange(*record);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbObjectId& id, AcDbSymbolTableRecord* record) {
  const auto status = add(record);
  if (status == Acad::eOk) id = record->objectId();
  return status;
}

AcRxClass* AcDbSymbolTable::recordClass() const {
  return AcDbSymbolTableRecord::desc();
}

void AcDbSymbolTable::file(AcDbSymbolTableRecord& record) {
  m_records.push_back(record.objectId());
  m_byName[folded(record.name().View())].push_back(record.objectId());
}

const std::vector<AcDbObjectId>& AcDbSymbolTable::filedUnder(const CString& name) const {
  static const std::vector<AcDbObjectId> none;
  const auto entry = m_byName.find(folded(name.View()));
  return entry == m_byName.end() ? none : entry->second;
}

void AcDbSymbolTable::arrange(const std::vector<AcDbObjectId>& order) {
  const std::unordered_set<AcDbObjectId> first(order.begin(), order.end());
  std::vector<AcDbObjectId> records = order;
  std::copy_if(m_records.begin(), m_records.end(), std::back_inserter(records),
               [&](const AcDbObjectId& id) { return !first.contains(id); });
  m_records = std::move(records);
}

CString AcDbSymbolTable::nextAnonymousName(const CString& prefix) {
  int& last = m_lastNumbers[folded(prefix.View())];
  CString name;
  AcDbObjectId taken;
  do {
    name.Format(L"%s%d", prefix, ++last);
    // A number that an erased block had is not given again: undo may bring the block back.
  } while (getAt(name, taken, true) == Acad::eOk);
  return name;
}

void AcDbSymbolTable::nameChanged(AcDbSymbolTableRecord& record) {
  auto& ids = m_byName[folded(record.name().View())];
  if (std::find(ids.begin(), ids.end(), record.objectId()) == ids.end()) ids.push_back(record.objectId());
}

void AcDbSymbolTable::dxfOutFields(DxfRecordEditor& editor) const {
  editor.type("TABLE");
  editor.text(2, m_recordType);
  if (editor.subclassMarkers()) {
    editor.handle(5, handle());
    writeOwner(editor, AcDbHandle());
    editor.subclass("AcDbSymbolTable");
  }
  const auto alive = std::count_if(m_records.begin(), m_records.end(),
                                   [](const AcDbObjectId& id) { return !id.isErased(); });
  editor.integer(70, alive);
  if (m_recordType == "DIMSTYLE") {
    editor.subclass("AcDbDimStyleTable");
    if (editor.subclassMarkers() && rawRecord().isEmpty()) editor.integer(71, 0);
  }
}

AcDbSymbolTableIterator::AcDbSymbolTableIterator(const AcDbSymbolTable& table) : m_ids(table.records()) {
  start();
}

void AcDbSymbolTableIterator::start(bool atBeginning, bool skipErased) {
  m_at = atBeginning || m_ids.empty() ? 0 : m_ids.size() - 1;
  skip(atBeginning, skipErased);
}

void AcDbSymbolTableIterator::step(bool forward, bool skipErased) {
  if (done()) return;
  m_at = forward ? m_at + 1 : m_at - 1; // below 0 wraps beyond the end
  skip(forward, skipErased);
}

void AcDbSymbolTableIterator::skip(bool forward, bool skipErased) {
  while (!done() && skipErased && m_ids[m_at].isErased()) m_at = forward ? m_at + 1 : m_at - 1;
}

Acad::ErrorStatus AcDbSymbolTableIterator::getRecordId(AcDbObjectId& id) const {
  if (done()) return Acad::eOutOfRange;
  id = m_ids[m_at];
  return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableIterator::getRecord(AcDbSymbolTableRecord*& record, AcDb::OpenMode mode,
                                                     bool openErased) const {
  return getTypedRecord(record, mode, openErased);
}
