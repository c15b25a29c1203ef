#include "tests/host/db/DrawingFixture.h"

using OpenClose = Drawing;

TEST_F(OpenClose, ManyMayReadAtOnceButNobodyWritesMeanwhile) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine> first(id, AcDb::kForRead);
  AcDbObjectPointer<AcDbLine> second(id, AcDb::kForRead);
  EXPECT_EQ(first.openStatus(), Acad::eOk);
  EXPECT_EQ(second.openStatus(), Acad::eOk);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite).openStatus(), Acad::eWasOpenForRead);
}

TEST_F(OpenClose, AWriterIsAlone) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine> writer(id, AcDb::kForWrite);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(id, AcDb::kForRead).openStatus(), Acad::eWasOpenForWrite);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite).openStatus(), Acad::eWasOpenForWrite);
}

TEST_F(OpenClose, NoMoreThan256Readers) {
  const auto id = addLine();
  std::vector<AcDbObjectPointer<AcDbLine>> readers;
  for (int i = 0; i < 256; ++i) readers.emplace_back(id, AcDb::kForRead);
  EXPECT_EQ(readers.back().openStatus(), Acad::eOk);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(id, AcDb::kForRead).openStatus(), Acad::eAtMaxReaders);
}

TEST_F(OpenClose, AnObjectOfAnotherClassIsNotOpened) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbCircle> circle(id, AcDb::kForRead);
  EXPECT_EQ(circle.openStatus(), Acad::eNotThatKindOfClass);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite).openStatus(), Acad::eOk);
}

TEST_F(OpenClose, NullAndErasedIdsAreRefused) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->erase();
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(AcDbObjectId(), AcDb::kForRead).openStatus(), Acad::eNullObjectId);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(id, AcDb::kForRead).openStatus(), Acad::eWasErased);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(id, AcDb::kForRead, true).openStatus(), Acad::eOk);
}

TEST_F(OpenClose, AnEntityOnALockedLayerCanBeReadButNotWritten) {
  const auto layer = addLayer(L"管线");
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->setLayer(layer);
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsLocked(true);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite).openStatus(), Acad::eOnLockedLayer);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(id, AcDb::kForRead).openStatus(), Acad::eOk);
}

TEST_F(OpenClose, ANewEntityCanBePutOnALockedLayer) {
  const auto layer = addLayer(L"管线");
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsLocked(true);
  auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0));
  line->setLayer(layer);
  AcDbObjectPointer<AcDbBlockTableRecord> model(db.modelSpaceId(), AcDb::kForWrite);
  ASSERT_EQ(model->appendAcDbEntity(line), Acad::eOk);
  EXPECT_EQ(line->setColorIndex(1), Acad::eOk);
  EXPECT_EQ(line->close(), Acad::eOk);
}

TEST_F(OpenClose, SettersNeedTheObjectOpenForWrite) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForRead);
  EXPECT_EQ(line->setColorIndex(1), Acad::eNotOpenForWrite);
  EXPECT_EQ(line->colorIndex(), 256);
  EXPECT_EQ(line->setEndPoint(AcGePoint3d(1, 1, 1)), Acad::eNotOpenForWrite);
  EXPECT_EQ(line->erase(), Acad::eNotOpenForWrite);
}

TEST_F(OpenClose, TheOnlyReaderMayBecomeTheWriter) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForRead);
  EXPECT_EQ(line->upgradeOpen(), Acad::eOk);
  EXPECT_EQ(line->setColorIndex(3), Acad::eOk);
  EXPECT_EQ(line->upgradeOpen(), Acad::eWasOpenForWrite);
  EXPECT_EQ(line->downgradeOpen(), Acad::eOk);
  EXPECT_EQ(line->setColorIndex(4), Acad::eNotOpenForWrite);
}

TEST_F(OpenClose, UpgradeIsRefusedWhileOthersReadAndChangesNothing) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine> first(id, AcDb::kForRead);
  AcDbObjectPointer<AcDbLine> second(id, AcDb::kForRead);
  EXPECT_EQ(first->upgradeOpen(), Acad::eWasOpenForRead);
  EXPECT_EQ(first.close(), Acad::eOk);
  EXPECT_EQ(second->upgradeOpen(), Acad::eOk);
}

TEST_F(OpenClose, ClosingWhatIsNotOpenIsToldToTheCaller) {
  const auto id = addLine();
  EXPECT_EQ(id.object()->close(), Acad::eNotOpenForRead);
}

TEST_F(OpenClose, AnEntityIsTakenIntoOneDrawingOnly) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  AcDbObjectPointer<AcDbBlockTableRecord> model(db.modelSpaceId(), AcDb::kForWrite);
  EXPECT_EQ(model->appendAcDbEntity(line.object()), Acad::eAlreadyInDb);
}

TEST_F(OpenClose, ANewEntityStandsOnTheCurrentLayer) {
  db.setClayer(addLayer(L"当前"));
  EXPECT_EQ(at<AcDbLine>(addLine()).layer(), L"当前");
}

TEST(OpenCloseEnd, TheWorkingDatabaseIsForgottenWhenItDies) {
  {
    AcDbDatabase db;
    acdbHostApplicationServices()->setWorkingDatabase(&db);
  }
  EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}
