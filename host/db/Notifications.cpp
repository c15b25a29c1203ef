// What a database and its objects tell their reactors.
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbDatabaseReactor.h"
#include "host/db/AcDbObjectReactor.h"
#include "host/db/DxfRecordEditor.h"

#include <algorithm>

// Reactors may come and go while they are told: each is asked for anew.
template <typename Tell> void AcDbDatabase::tell(Tell tellOne) const {
  for (AcDbDatabaseReactor* reactor : std::vector(m_reactors))
    if (std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end()) tellOne(*reactor);
}

template <typename Tell> void AcDbDatabase::tellOf(const AcDbObject& object, Tell tellOne) const {
  const auto found = m_objectReactors.find(object.objectId());
  if (found == m_objectReactors.end()) return;
  for (AcDbObjectReactor* reactor : std::vector(found->second)) {
    const auto now = m_objectReactors.find(object.objectId());
    if (now == m_objectReactors.end()) return;
    if (std::find(now->second.begin(), now->second.end(), reactor) != now->second.end()) tellOne(*reactor);
  }
}

void AcDbDatabase::addReactor(AcDbDatabaseReactor* reactor) {
  if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
    m_reactors.push_back(reactor);
}

void AcDbDatabase::removeReactor(AcDbDatabaseReactor* reactor) {
  std::erase(m_reactors, reactor);
}

Acad::ErrorStatus AcDbObject::addReactor(AcDbObjectReactor* reactor) const {
  if (!reactor) return Acad::eNullObjectPointer;
  if (!database()) return Acad::eNoDatabase;
  auto& reactors = database()->objectReactors()[objectId()];
  if (std::find(reactors.begin(), reactors.end(), reactor) != reactors.end()) return Acad::eDuplicateKey;
  reactors.push_back(reactor);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::removeReactor(AcDbObjectReactor* reactor) const {
  if (!database()) return Acad::eNoDatabase;
  auto& all = database()->objectReactors();
  const auto found = all.find(objectId());
  if (found == all.end() || std::erase(found->second, reactor) == 0) return Acad::eKeyNotFound;
  if (found->second.empty()) all.erase(found);
  return Acad::eOk;
}

namespace {

std::vector<AcDbHandle> reactorsIn(const DxfRecord& record) {
  std::vector<AcDbHandle> handles;
  bool inGroup = false;
  for (const DxfTag& tag : record.tags()) {
    if (tag.code == 100 || tag.code >= 1000) break;
    if (tag.code == 102) inGroup = dxf::trimBlanks(tag.value) == "{ACAD_REACTORS";
    if (inGroup && tag.code == 330) handles.push_back(AcDbHandle::fromHex(tag.value));
  }
  return handles;
}

DxfRecord withReactors(const DxfRecord& record, const std::vector<AcDbHandle>& handles) {
  std::string tags;
  for (const AcDbHandle handle : handles) tags += DxfRecordEditor::tag(330, handle.toHex());
  DxfRecordEditor editor(record, true);
  editor.group("{ACAD_REACTORS", tags);
  return editor.finish();
}

} // namespace

bool AcDbObject::hasPersistentReactor(const AcDbObjectId& reactor) const {
  const auto handles = reactorsIn(record());
  return std::find(handles.begin(), handles.end(), reactor.handle()) != handles.end();
}

Acad::ErrorStatus AcDbObject::addPersistentReactor(const AcDbObjectId& reactor) {
  if (!database()) return Acad::eNoDatabase;
  if (reactor.isNull()) return Acad::eNullObjectId;
  if (reactor.database() != database()) return Acad::eWrongDatabase;
  if (hasPersistentReactor(reactor)) return Acad::eDuplicateKey;
  auto handles = reactorsIn(record());
  handles.push_back(reactor.handle());
  const DxfRecord changed = withReactors(record(), handles);
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  replaceRecordText(changed);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::removePersistentReactor(const AcDbObjectId& reactor) {
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  auto handles = reactorsIn(record());
  if (std::erase(handles, reactor.handle()) == 0) return Acad::eKeyNotFound;
  const DxfRecord changed = withReactors(record(), handles);
  assertWriteEnabled();
  replaceRecordText(changed);
  return Acad::eOk;
}

// What the database is told, told on:

void AcDbDatabase::beforeFirstChange(const AcDbObject& object) {
  tell([&](AcDbDatabaseReactor& r) { r.objectOpenedForModify(this, &object); });
  tellOf(object, [&](AcDbObjectReactor& r) { r.openedForModify(&object); });
}

void AcDbDatabase::afterChange(AcDbObject& object) {
  m_modified = true;
  tell([&](AcDbDatabaseReactor& r) { r.objectModified(this, &object); });
  tellOf(object, [&](AcDbObjectReactor& r) { r.modified(&object); });
}

void AcDbDatabase::afterErase(AcDbObject& object, bool erased) {
  m_modified = true;
  tell([&](AcDbDatabaseReactor& r) { r.objectErased(this, &object, erased); });
  tellOf(object, [&](AcDbObjectReactor& r) { r.erased(&object, erased); });
}

void AcDbDatabase::afterAppend(AcDbObject& object) {
  tell([&](AcDbDatabaseReactor& r) { r.objectAppended(this, &object); });
}

void AcDbDatabase::afterUnappend(AcDbObject& object, bool again) {
  m_modified = true;
  tell([&](AcDbDatabaseReactor& r) {
    again ? r.objectReAppended(this, &object) : r.objectUnAppended(this, &object);
  });
  tellOf(object, [&](AcDbObjectReactor& r) { again ? r.reappended(&object) : r.unappended(&object); });
}

void AcDbDatabase::afterClose(const AcDbObject& object) {
  tellOf(object, [&](AcDbObjectReactor& r) { r.objectClosed(object.objectId()); });
}

void AcDbDatabase::beforeSettingChange(const CString& name) {
  tell([&](AcDbDatabaseReactor& r) { r.headerSysVarWillChange(this, name); });
}

void AcDbDatabase::afterSettingChange(const CString& name, bool success) {
  tell([&](AcDbDatabaseReactor& r) { r.headerSysVarChanged(this, name, success); });
}

void AcDbDatabase::afterResurrection(const CString& application, const std::vector<AcDbObjectId>& objects) {
  tell([&](AcDbDatabaseReactor& r) { r.proxyResurrectionCompleted(this, application, objects); });
}

void AcDbDatabase::sayGoodbye() {
  tell([&](AcDbDatabaseReactor& r) { r.goodbye(this); });
  while (!m_objectReactors.empty()) {
    const auto [id, reactors] = *m_objectReactors.begin();
    m_objectReactors.erase(m_objectReactors.begin());
    for (AcDbObjectReactor* reactor : reactors) reactor->goodbye(id.object());
  }
}
