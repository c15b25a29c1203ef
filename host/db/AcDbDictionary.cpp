#include "host/db/AcDbDictionary.h"

#include "host/db/AcDbObjectPointer.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/resbuf.h"

#include <algorithm>

ACRX_DXF_DEFINE_MEMBERS(AcDbDictionary, AcDbObject, "DICTIONARY")
ACRX_DXF_DEFINE_MEMBERS(AcDbXrecord, AcDbObject, "XRECORD")
ACRX_DXF_DEFINE_MEMBERS(AcDbUnknownObject, AcDbObject, "")

// --- dictionary
// ------------------------------------------------------------------------------------------------

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

// --- xrecord
// ---------------------------------------------------------------------------------------------------

namespace {

// The tags behind the class's marker and its 280, which are the record's data.
std::vector<DxfTag> dataOf(const std::vector<DxfTag>& tags) {
  std::size_t at = 0;
  while (at < tags.size() && !(tags[at].code == 100 && dxf::trimBlanks(tags[at].value) == "AcDbXrecord"))
    ++at;
  if (at < tags.size()) ++at;
  if (at < tags.size() && tags[at].code == 280) ++at;
  std::size_t end = at;
  while (end < tags.size() && tags[end].code < 1000) ++end;
  return {tags.begin() + static_cast<std::ptrdiff_t>(at), tags.begin() + static_cast<std::ptrdiff_t>(end)};
}

} // namespace

Acad::ErrorStatus AcDbXrecord::rbChain(resbuf** chain) const {
  if (!chain) return Acad::eInvalidInput;
  const auto tags = m_newData ? dxfTagsOf(*m_newData) : dataOf(rawRecord().tags());
  *chain = tags.empty() ? nullptr : dxf::toResbuf(tags).release();
  return Acad::eOk;
}

Acad::ErrorStatus AcDbXrecord::setFromRbChain(const resbuf& chain) {
  for (const resbuf* rb = &chain; rb; rb = rb->rbnext)
    if (rb->restype < 1 || rb->restype > 369) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_newData = dxf::fromResbuf(&chain);
  return Acad::eOk;
}

void AcDbXrecord::dxfInFields(DxfTags, const DxfDecodeContext&) {
  m_newData.reset();
}

void AcDbXrecord::dxfOutFields(DxfRecordEditor& editor) const {
  if (!m_newData && !rawRecord().isEmpty()) return;
  // The data may hold any code, so the record is put together anew around it, keeping what stands ahead of it
  // (owner, reactors) and behind it (extended data).
  std::string head;
  std::string tail;
  if (rawRecord().isEmpty()) {
    head = DxfRecordEditor::tag(0, "XRECORD") + DxfRecordEditor::tag(5, handle().toHex()) +
           DxfRecordEditor::tag(330, ownerId().handle().toHex()) + DxfRecordEditor::tag(100, "AcDbXrecord") +
           DxfRecordEditor::tag(280, "1");
  } else {
    const auto tags = rawRecord().tags();
    const auto data = dataOf(tags);
    const char* dataBegin = data.empty() ? nullptr : data.front().value.data();
    bool behind = false;
    for (const DxfTag& tag : tags) {
      if (tag.value.data() == dataBegin || tag.code >= 1000) behind = true;
      if (!behind) head += DxfRecordEditor::tag(tag.code, tag.value);
      if (tag.code >= 1000) tail += DxfRecordEditor::tag(tag.code, tag.value);
    }
  }
  editor.replaceAll(head + m_newData.value_or(std::string()) + tail);
}

// --- objects kept as they came
// ---------------------------------------------------------------------------------

void AcDbUnknownObject::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutHead(editor, rawRecord().type());
}
