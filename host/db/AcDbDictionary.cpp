#include "host/db/AcDbDictionary.h"

#include "host/db/AcDbObjectPointer.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <algorithm>

ACRX_DXF_DEFINE_MEMBERS(AcDbDictionary, AcDbObject, "DICTIONARY")

Acad::ErrorStatus AcDbDictionary::getAt(const wchar_t* name, AcDbObjectId& id) const {
  for (const Entry& entry : m_entries) {
    if (entry.name.CompareNoCase(name) != 0) continue;
    AcDbObjectId found;
    if (!database() || database()->getAcDbObjectId(found, false, entry.handle) != Acad::eOk) continue;
    if (found.isErased()) continue;
    id = found;
    return Acad::eOk;
  }
  return Acad::eKeyNotFound;
}

Acad::ErrorStatus AcDbDictionary::setAt(const wchar_t* name, AcDbObject* object, AcDbObjectId& id) {
  if (!object) return Acad::eNullObjectPointer;
  if (CString(name).IsEmpty()) return Acad::eInvalidName;
  if (!database()) return Acad::eNoDatabase;
  if (object->database()) return Acad::eAlreadyInDb;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  remove(name);
  const auto status = database()->addToObjects(object, objectId());
  if (status != Acad::eOk) return status;
  m_entries.push_back({name, object->handle(), false});
  m_entriesChanged = true;
  id = object->objectId();
  return Acad::eOk;
}

Acad::ErrorStatus AcDbDictionary::remove(const wchar_t* name) {
  const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                  [&](const Entry& entry) { return entry.name.CompareNoCase(name) == 0; });
  if (found == m_entries.end()) return Acad::eKeyNotFound;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  AcDbObjectId id;
  if (database() && database()->getAcDbObjectId(id, false, found->handle) == Acad::eOk) {
    AcDbObjectPointer<AcDbObject> object(id, AcDb::kForWrite);
    if (object) object->erase();
  }
  m_entries.erase(found);
  m_entriesChanged = true;
  return Acad::eOk;
}

bool AcDbDictionary::has(const wchar_t* name) const {
  AcDbObjectId id;
  return getAt(name, id) == Acad::eOk;
}

Acad::ErrorStatus AcDbDictionary::nameAt(const AcDbObjectId& id, CString& name) const {
  const Entry* entry = id.database() == database() ? entryOf(id.handle()) : nullptr;
  if (!entry) return Acad::eKeyNotFound;
  name = entry->name;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbDictionary::setName(const wchar_t* oldName, const wchar_t* newName) {
  if (CString(newName).IsEmpty()) return Acad::eInvalidName;
  const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                  [&](const Entry& entry) { return entry.name.CompareNoCase(oldName) == 0; });
  if (found == m_entries.end()) return Acad::eKeyNotFound;
  if (found->name.CompareNoCase(newName) != 0 && has(newName)) return Acad::eDuplicateKey;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  found->name = newName;
  m_entriesChanged = true;
  return Acad::eOk;
}

const AcDbDictionary::Entry* AcDbDictionary::entryOf(AcDbHandle handle) const {
  const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                  [&](const Entry& entry) { return entry.handle == handle; });
  return found == m_entries.end() ? nullptr : &*found;
}

void AcDbDictionary::fileEntry(const Entry& entry) {
  std::erase_if(m_entries, [&](const Entry& e) { return e.name.CompareNoCase(entry.name) == 0; });
  m_entries.push_back(entry);
  m_entriesChanged = true;
  assertWriteEnabled();
}

void AcDbDictionary::dxfInFields(DxfTags tags, const DxfDecodeContext&) {
  m_entries.clear();
  m_entriesChanged = false;
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    if (tag.code == 3) {
      m_entries.push_back({dxf::decodeText(tag.value), {}, false});
    } else if ((tag.code == 350 || tag.code == 360) && !m_entries.empty()) {
      m_entries.back().handle = AcDbHandle::fromHex(tag.value);
      m_entries.back().hardOwner = tag.code == 360;
    }
  }
}

void AcDbDictionary::dxfOutFields(DxfRecordEditor& editor) const {
  const bool isNew = rawRecord().isEmpty();
  dxfOutHead(editor, "DICTIONARY");
  if (isNew) editor.handle(330, ownerId().handle());
  editor.subclass("AcDbDictionary");
  if (isNew) editor.integer(281, 1);
  if (!m_entriesChanged) return;
  std::string run;
  for (const Entry& entry : m_entries)
    run += DxfRecordEditor::tag(3, dxf::encodeText(entry.name)) +
           DxfRecordEditor::tag(entry.hardOwner ? 360 : 350, entry.handle.toHex());
  static constexpr int codes[] = {3, 350, 360};
  editor.replaceRun(codes, run);
}
