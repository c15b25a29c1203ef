// Opening the layer table of the working drawing, and going through its records.
#pragma once

#include "host/db/AcDbLayerTable.h"

namespace layers {

using OpenTable = AcDbObjectPointer<AcDbLayerTable>;
using OpenRecord = AcDbObjectPointer<AcDbLayerTableRecord>;

// Empty without a working drawing and when the table can't be opened.
OpenTable OpenLayerTable(AcDb::OpenMode mode);
// Empty when the table has no such layer or its record can't be opened.
OpenRecord OpenLayer(const AcDbLayerTable& table, const CString& name, AcDb::OpenMode mode);

// Each record that isn't erased, opened in the mode, in table order; one that can't be opened is passed over.
template <typename Visit> void ForEachLayer(const AcDbLayerTable& table, AcDb::OpenMode mode, Visit visit) {
  AcDbLayerTableIterator iterator(table);
  for (iterator.start(); !iterator.done(); iterator.step()) {
    AcDbLayerTableRecord* opened = nullptr;
    if (iterator.getRecord(opened, mode) != Acad::eOk) continue;
    const OpenRecord record(opened);
    visit(*opened);
  }
}

} // namespace layers
