// A default drawing and short ways to put things into it.
#pragma once

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbTables.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/resbuf.h"

#include <gtest/gtest.h>

class Drawing : public testing::Test {
 protected:
  AcDbObjectId addToModelSpace(AcDbEntity* entity) {
    AcDbObjectPointer<AcDbBlockTableRecord> model(db.modelSpaceId(), AcDb::kForWrite);
    AcDbObjectId id;
    EXPECT_EQ(model->appendAcDbEntity(id, entity), Acad::eOk);
    entity->close();
    return id;
  }
  AcDbObjectId addLine(double x = 0) {
    return addToModelSpace(new AcDbLine(AcGePoint3d(x, 0, 0), AcGePoint3d(x, 10, 0)));
  }
  AcDbObjectId addLayer(const wchar_t* name) {
    AcDbObjectPointer<AcDbLayerTable> layers(db.layerTableId(), AcDb::kForWrite);
    auto* layer = new AcDbLayerTableRecord;
    EXPECT_EQ(layer->setName(name), Acad::eOk);
    AcDbObjectId id;
    EXPECT_EQ(layers->add(id, layer), Acad::eOk);
    layer->close();
    return id;
  }
  template <typename T> T& at(const AcDbObjectId& id) { return *static_cast<T*>(id.object()); }

  AcDbDatabase db;
};
