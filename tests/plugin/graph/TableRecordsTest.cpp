// Filling blocks, and what is in them.
#include "plugin/graph/TableRecords.h"

#include <gtest/gtest.h>

#include "tests/support/WorkingDrawing.h"

namespace {

TEST(TableRecords, TakeAnEntityOrFreeIt) {
  WorkingDrawing drawing;
  AcDbObjectPointer<AcDbBlockTableRecord> space(drawing.Database().modelSpaceId(), AcDb::kForWrite);
  EXPECT_EQ(ZP::AddToTabRecAndClose(space.object(), new AcDbLine({0, 0, 0}, {1, 0, 0})), Acad::eOk);
  EXPECT_NE(ZP::AddToTabRecAndClose(space.object(), nullptr), Acad::eOk);
  EXPECT_NE(ZP::AddToTabRecAndClose(nullptr, new AcDbLine({0, 0, 0}, {1, 0, 0})), Acad::eOk);
  EXPECT_EQ(ZP::EntitiesOf(*space.object()).size(), 1u);
}

TEST(TableRecords, TellTheEntitiesThatStand) {
  WorkingDrawing drawing;
  const AcDbObjectId first = drawing.AppendLine(), second = drawing.AppendLine(),
                     third = drawing.AppendLine();
  AcDbObjectPointer<AcDbEntity>(second, AcDb::kForWrite)->erase();
  const AcDbObjectPointer<AcDbBlockTableRecord> space(drawing.Database().modelSpaceId(), AcDb::kForRead);
  EXPECT_EQ(ZP::EntitiesOf(*space.object()), (std::vector<AcDbObjectId>{first, third}));
}

} // namespace
