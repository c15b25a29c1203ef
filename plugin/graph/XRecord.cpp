#include "plugin/graph/XRecord.h"

#include <algorithm>
#include <memory>

#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbXrecord.h"

namespace {

// The record's own id, null where the object has none under the key.
AcDbObjectId RecordOf(const AcDbObjectId& extension, const CString& key) {
  AcDbObjectId record;
  const AcDbObjectPointer<AcDbDictionary> dictionary(extension, AcDb::kForRead);
  if (dictionary) dictionary->getAt(key, record);
  return record;
}

bool AddRecord(AcDbObject& object, const CString& key, const resbuf& chain) {
  auto record = std::make_unique<AcDbXrecord>();
  if (record->setFromRbChain(chain) != Acad::eOk) return false;
  AcDbObjectId extension = object.extensionDictionary();
  if (extension.isNull() || extension.isErased()) {
    if (object.createExtensionDictionary() != Acad::eOk) return false;
    extension = object.extensionDictionary();
  }
  const AcDbObjectPointer<AcDbDictionary> dictionary(extension, AcDb::kForWrite);
  AcDbObjectId id;
  if (!dictionary || dictionary->setAt(key, record.get(), id) != Acad::eOk) return false;
  record.release()->close(); // the drawing's
  return true;
}

} // namespace

int ZP::GetXRecord(AcDbObjectId id, CString key, resbuf*& chain) {
  const AcDbObjectPointer<AcDbObject> object(id, AcDb::kForRead);
  if (!object) return 0;
  const AcDbObjectPointer<AcDbXrecord> record(RecordOf(object->extensionDictionary(), key), AcDb::kForRead);
  resbuf* data = nullptr;
  if (!record || record->rbChain(&data) != Acad::eOk || !data) return 0;
  chain = data;
  return 1;
}

int ZP::SetXRecord(AcDbObjectId id, CString key, const resbuf* chain) {
  const AcDbObjectPointer<AcDbObject> object(id, AcDb::kForWrite);
  if (!object || !chain || key.IsEmpty()) return 0;
  if (const AcDbObjectId there = RecordOf(object->extensionDictionary(), key); !there.isNull()) {
    const AcDbObjectPointer<AcDbXrecord> record(there, AcDb::kForWrite);
    if (record) return record->setFromRbChain(*chain) == Acad::eOk ? 1 : 0;
    if (record.openStatus() != Acad::eWasErased && record.openStatus() != Acad::eNotThatKindOfClass) return 0;
  }
  return AddRecord(*object, key, *chain) ? 1 : 0;
}
