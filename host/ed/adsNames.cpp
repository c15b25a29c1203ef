#include "host/ed/adsNames.h"

#include "host/db/AcDbDatabase.h"
#include "host/ed/AcApDocManager.h"

#include <cstdint>
#include <memory>

// An entity's name is its database and its handle, so that a stale one is found out instead of followed.
Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& id, const long long* name) {
  id.setNull();
  if (!name || name[0] == 0 || name[1] == 0) return Acad::eInvalidInput;
  const std::unique_ptr<AcApDocumentIterator> documents(acDocManagerPtr()->newAcApDocumentIterator());
  for (; !documents->done(); documents->step()) {
    const auto* database = documents->document()->database();
    if (static_cast<long long>(reinterpret_cast<std::intptr_t>(database)) != name[0]) continue;
    const auto status = database->getAcDbObjectId(id, false, AcDbHandle(static_cast<std::uint64_t>(name[1])));
    return status == Acad::eOk ? Acad::eOk : Acad::eInvalidInput;
  }
  return Acad::eInvalidInput;
}

Acad::ErrorStatus acdbGetAdsName(long long* name, const AcDbObjectId& id) {
  ads_name_clear(name);
  if (!id.isValid()) return Acad::eNullObjectId;
  name[0] = static_cast<long long>(reinterpret_cast<std::intptr_t>(id.database()));
  name[1] = static_cast<long long>(id.handle().value());
  return Acad::eOk;
}
