// What every drawing must stand that opens at all: it is saved, the saved file opens again without recovery,
// and saving that one gives the same bytes. In another version it does so too, and edits are taken back
// without a trace.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/dxf/DrawingFile.h"
#include "host/dxf/FileVersion.h"

#include <cstdlib>
#include <string>

namespace fuzz {

inline void require(bool holds) {
  if (!holds) std::abort();
}

// Changes what it can of every object.
inline void editAll(AcDbDatabase& database) {
  const std::size_t count = database.stubs().size();
  for (std::size_t i = 1; i < count; ++i) {
    AcDbObject* object = database.stubs()[i].object;
    if (auto* entity = AcDbEntity::cast(object)) {
      AcDbObjectPointer<AcDbEntity> opened(entity->objectId(), AcDb::kForWrite);
      if (!opened) continue;
      opened->setColorIndex(opened->colorIndex() == 1 ? 2 : 1);
      opened->setLinetypeScale(3.5);
      AcGeMatrix3d move;
      move.entry[0][3] = 12.5;
      opened->transformBy(move);
      if (i % 3 == 0) opened->erase();
    } else if (auto* layer = AcDbLayerTableRecord::cast(object)) {
      AcDbObjectPointer<AcDbLayerTableRecord> opened(layer->objectId(), AcDb::kForWrite);
      if (opened) opened->setIsOff(!opened->isOff());
    }
  }
}

inline void saveTwice(const std::string& bytes, bool recover) {
  AcDbDatabase first(false);
  dxf::ReadOptions options;
  options.recover = recover;
  const auto report = dxf::ReadDrawingBytes(bytes, L"fuzz", first, options);
  require(report.ok == report.error.IsEmpty());
  if (!report.ok) return;
  const std::string saved = dxf::WriteDrawingBytes(first);

  AcDbDatabase second(false);
  require(dxf::ReadDrawingBytes(saved, L"fuzz", second).ok);
  require(dxf::WriteDrawingBytes(second) == saved);

  // In another version too, one for each input.
  const auto versions = dxf::writableVersions();
  const std::string version(versions[bytes.size() % versions.size()].mark);
  const std::string inVersion = dxf::WriteDrawingBytes(first, nullptr, {version, {}});
  AcDbDatabase converted(false);
  require(dxf::ReadDrawingBytes(inVersion, L"fuzz", converted).ok);
  require(dxf::WriteDrawingBytes(converted) == inVersion);

  first.undo().beginCommand(L"edit");
  editAll(first);
  first.undo().endCommand();
  AcDbDatabase edited(false);
  require(dxf::ReadDrawingBytes(dxf::WriteDrawingBytes(first), L"fuzz", edited).ok);
  if (first.undo().commandCount() == 0) return;
  require(first.undo().undo() == Acad::eOk);
  require(dxf::WriteDrawingBytes(first) == saved);
}

} // namespace fuzz
