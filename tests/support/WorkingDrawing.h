// A default drawing that is the working one while this lives.
#pragma once

#include <memory>

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbTables.h"

class WorkingDrawing {
 public:
  WorkingDrawing() : WorkingDrawing(std::make_unique<AcDbDatabase>(true)) {}
  explicit WorkingDrawing(std::unique_ptr<AcDbDatabase> database)
      : m_database(std::move(database)), m_before(acdbHostApplicationServices()->workingDatabase()) {
    acdbHostApplicationServices()->setWorkingDatabase(m_database.get());
  }
  ~WorkingDrawing() { acdbHostApplicationServices()->setWorkingDatabase(m_before); }
  WorkingDrawing(const WorkingDrawing&) = delete;
  WorkingDrawing& operator=(const WorkingDrawing&) = delete;

  AcDbDatabase& Database() { return *m_database; }
  operator AcDbDatabase&() { return *m_database; }

  // Takes the entity into model space.
  AcDbObjectId Append(AcDbEntity* entity) { return AppendTo(*m_database, entity); }
  static AcDbObjectId AppendTo(AcDbDatabase& database, AcDbEntity* entity) {
    AcDbObjectId id;
    AcDbObjectPointer<AcDbBlockTableRecord> space(database.modelSpaceId(), AcDb::kForWrite);
    if (space && space->appendAcDbEntity(id, entity) == Acad::eOk) entity->close();
    return id;
  }
  AcDbObjectId AppendLine() { return Append(new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(100, 0, 0))); }

  AcDbObjectId AddLayer(const wchar_t* name) { return AddLayerTo(*m_database, name); }
  static AcDbObjectId AddLayerTo(AcDbDatabase& database, const wchar_t* name) {
    AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId(), AcDb::kForWrite);
    auto record = std::make_unique<AcDbLayerTableRecord>();
    AcDbObjectId id;
    if (!table || record->setName(name) != Acad::eOk || table->add(id, record.get()) != Acad::eOk) return {};
    record.release()->close();
    return id;
  }
  AcDbObjectId Layer(const wchar_t* name) { return LayerOf(*m_database, name); }
  static AcDbObjectId LayerOf(AcDbDatabase& database, const wchar_t* name) {
    AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId(), AcDb::kForRead);
    AcDbObjectId id;
    if (table) table->getAt(name, id);
    return id;
  }

 private:
  std::unique_ptr<AcDbDatabase> m_database;
  AcDbDatabase* m_before;
};
