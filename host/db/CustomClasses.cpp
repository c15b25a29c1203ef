// Classes of plug-ins: what becomes of their objects when a class comes or goes, and how files tell of them.
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcDbUnknownObject.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <algorithm>
#include <map>

void acrxBuildClassHierarchy() {
  for (AcDbDatabase* database : AcDbDatabase::allDatabases()) database->resurrectClasses();
}

void acrxWithdrawClass(const AcRxClass& type) {
  for (AcDbDatabase* database : AcDbDatabase::allDatabases()) database->withdrawClass(type);
}

void AcDbDatabase::exchangeObject(AcDbStub& stub, std::unique_ptr<AcDbObject> made) {
  const std::unique_ptr<AcDbObject> old(stub.object);
  const DxfRecord record = old->record();
  made->takePlaceOf(*old);
  stub.object = made.release();
  stub.object->setRecord(record, DxfDecodeContext(*this));
}

void AcDbDatabase::withdrawClass(const AcRxClass& type) {
  for (AcDbStub& stub : m_stubs) {
    if (stub.object->isA() != &type) continue;
    if (AcDbEntity::cast(stub.object))
      exchangeObject(stub, std::make_unique<AcDbUnknownEntity>());
    else
      exchangeObject(stub, std::make_unique<AcDbUnknownObject>());
  }
}

void AcDbDatabase::resurrectClasses() {
  std::map<CString, std::vector<AcDbObjectId>> resurrected; // by application
  for (AcDbStub& stub : m_stubs) {
    const bool isEntity = stub.object->isA() == AcDbUnknownEntity::desc();
    if (!isEntity && stub.object->isA() != AcDbUnknownObject::desc()) continue;
    const AcRxClass* type = AcRxClass::findByDxfName(stub.object->record().type());
    if (!type || !type->isCustom() || type->isDerivedFrom(AcDbEntity::desc()) != isEntity) continue;
    std::unique_ptr<AcRxObject> made(type->create());
    auto* object = AcDbObject::cast(made.get());
    if (!object) continue;
    made.release();
    exchangeObject(stub, std::unique_ptr<AcDbObject>(object));
    resurrected[CString::FromUtf8(type->application())].push_back(AcDbObjectId(&stub));
  }
  for (const auto& [application, objects] : resurrected) afterResurrection(application, objects);
}

void AcDbDatabase::completeClasses() {
  if (!m_form.subclassMarkers()) return;
  std::map<std::string, std::pair<const AcRxClass*, int>> used;
  for (const AcDbStub& stub : m_stubs) {
    const AcRxClass* type = stub.object->isA();
    if (!type->isCustom() || stub.object->isErased()) continue;
    auto& [found, count] = used[type->dxfName()];
    found = type;
    ++count;
  }
  for (const auto& entry : used) {
    const std::string_view name = entry.first;
    const bool isThere =
        std::any_of(m_form.classes.begin(), m_form.classes.end(), [&](const DxfRecord& record) {
          for (const DxfTag& tag : record.tags())
            if (tag.code == 1) return dxf::trimBlanks(tag.value) == name;
          return false;
        });
    if (isThere) continue;
    const AcRxClass& type = *entry.second.first;
    const auto tag = [](int code, std::string_view value) { return DxfRecordEditor::tag(code, value); };
    std::string text = tag(0, "CLASS") + tag(1, name) + tag(2, CString(type.name()).ToUtf8()) +
                       tag(3, dxf::encodeText(CString::FromUtf8(type.application()))) +
                       tag(90, std::to_string(type.proxyFlags()));
    if (m_form.version >= "AC1018") text += tag(91, std::to_string(entry.second.second));
    text += tag(280, "0") + tag(281, type.isDerivedFrom(AcDbEntity::desc()) ? "1" : "0");
    m_form.classes.push_back(DxfRecord::own(std::move(text)));
  }
}
