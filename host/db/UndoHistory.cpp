#include "host/db/UndoHistory.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/DxfDecodeContext.h"

void UndoHistory::beginCommand(const CString& name) {
  if (m_depth++ == 0) {
    m_current = Step{name, {}, 0};
    m_seen.clear();
  }
}

void UndoHistory::endCommand() {
  if (m_depth == 0 || --m_depth > 0) return;
  // Opened for write but not changed is no change, and neither is what came and went within the command.
  std::erase_if(m_current.changes, [](const Change& change) {
    const AcDbObject* object = change.id.object();
    if (change.appended && object->isErased()) return true;
    return object->isErased() == change.erased && object->isImplicit() == change.implicit &&
           object->ownerId() == change.owner && change.record &&
           object->record().text() == change.record->text();
  });
  m_seen.clear();
  if (m_current.changes.empty()) return;
  m_undone.clear();
  m_current.bytes = bytesOf(m_current);
  m_bytes = 0;
  m_done.push_back(std::move(m_current));
  for (const Step& step : m_done) m_bytes += step.bytes;
  dropOldest();
}

void UndoHistory::cancelCommand() {
  if (m_depth == 0) return;
  m_depth = 0;
  m_seen.clear();
  exchange(m_current);
  m_current = {};
}

CString UndoHistory::undoName() const {
  return m_done.empty() ? CString() : m_done.back().name;
}

CString UndoHistory::redoName() const {
  return m_undone.empty() ? CString() : m_undone.back().name;
}

Acad::ErrorStatus UndoHistory::undo() {
  if (m_depth > 0 || m_done.empty()) return Acad::eNotApplicable;
  m_undone.push_back(exchange(m_done.back()));
  m_bytes -= m_done.back().bytes;
  m_done.pop_back();
  return Acad::eOk;
}

Acad::ErrorStatus UndoHistory::redo() {
  if (m_depth > 0 || m_undone.empty()) return Acad::eNotApplicable;
  m_done.push_back(exchange(m_undone.back()));
  m_bytes += m_done.back().bytes;
  m_undone.pop_back();
  return Acad::eOk;
}

void UndoHistory::clear() {
  m_done.clear();
  m_undone.clear();
  m_bytes = 0;
}

void UndoHistory::recordBefore(AcDbObject& object) {
  if (m_depth == 0 || !m_seen.insert(object.objectId()).second) return;
  m_current.changes.push_back(
      {object.objectId(), object.record(), object.ownerId(), object.isErased(), object.isImplicit(), false});
}

void UndoHistory::recordAppended(AcDbObject& object) {
  if (m_depth == 0 || !m_seen.insert(object.objectId()).second) return;
  m_current.changes.push_back({object.objectId(), std::nullopt, object.ownerId(), true, false, true});
}

// Brings back the state that the step holds and returns the state that was there.
UndoHistory::Step UndoHistory::exchange(const Step& step) {
  Step opposite{step.name, {}, 0};
  opposite.changes.reserve(step.changes.size());
  for (const Change& change : step.changes) {
    AcDbObject& object = *change.id.object();
    opposite.changes.push_back({change.id, object.record(), object.ownerId(), object.isErased(),
                                object.isImplicit(), change.appended});
  }
  // Erased flags first, so that names look up what is there afterwards.
  for (const Change& change : step.changes) {
    AcDbObject& object = *change.id.object();
    object.setErasedFlag(change.erased);
    object.setOwnerId(change.owner);
    object.setImplicit(change.implicit);
  }
  // What others name comes first: linetypes and styles, then layers, then all that stands on them.
  const DxfDecodeContext context(m_database);
  const auto rankOf = [](const AcDbObject& object) {
    if (AcDbLayerTableRecord::cast(&object)) return 1;
    return AcDbSymbolTableRecord::cast(&object) ? 0 : 2;
  };
  for (const int rank : {0, 1, 2}) {
    for (const Change& change : step.changes) {
      AcDbObject& object = *change.id.object();
      if (change.record && rankOf(object) == rank) object.setRecord(*change.record, context);
    }
  }
  for (std::size_t i = 0; i < step.changes.size(); ++i) {
    const Change& change = step.changes[i];
    AcDbObject& object = *change.id.object();
    const bool wasErased = opposite.changes[i].erased;
    if (change.appended && wasErased != change.erased)
      m_database.afterUnappend(object, !change.erased);
    else if (wasErased != change.erased)
      m_database.afterErase(object, change.erased);
    m_database.afterChange(object);
  }
  opposite.bytes = bytesOf(opposite);
  return opposite;
}

std::size_t UndoHistory::bytesOf(const Step& step) {
  std::size_t bytes = sizeof(Step) + step.changes.size() * sizeof(Change);
  for (const Change& change : step.changes)
    if (change.record) bytes += change.record->ownBytes();
  return bytes;
}

void UndoHistory::dropOldest() {
  while (m_done.size() > 1 && m_bytes > m_byteLimit) {
    m_bytes -= m_done.front().bytes;
    m_done.pop_front();
  }
}
