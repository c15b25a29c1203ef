#include "tests/host/db/DrawingFixture.h"

#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbXrecord.h"
#include "host/db/resbuf.h"

class Undo : public Drawing {
 protected:
  // All that a save would write, object by object.
  std::string state() const {
    std::string all;
    for (const AcDbStub& stub : db.stubs())
      if (!stub.object->isErased()) all += stub.object->record().text();
    return all;
  }
  template <typename Work> void command(const wchar_t* name, Work work) {
    db.undo().beginCommand(name);
    work();
    db.undo().endCommand();
  }
};

TEST_F(Undo, TakesBackAndRepeatsAWholeCommand) {
  const auto layer = addLayer(L"管线");
  const auto line = addLine();
  const auto before = state();
  command(L"改", [&] {
    AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsOff(true);
    AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setEndPoint(AcGePoint3d(7, 8, 9));
    addLine(5);
  });
  const auto after = state();
  EXPECT_EQ(db.undo().undoName(), L"改");
  ASSERT_EQ(db.undo().undo(), Acad::eOk);
  EXPECT_EQ(state(), before);
  EXPECT_FALSE(at<AcDbLayerTableRecord>(layer).isOff());
  EXPECT_EQ(at<AcDbLine>(line).endPoint(), AcGePoint3d(0, 10, 0));
  EXPECT_EQ(db.undo().redoName(), L"改");
  ASSERT_EQ(db.undo().redo(), Acad::eOk);
  EXPECT_EQ(state(), after);
  EXPECT_EQ(db.undo().redo(), Acad::eNotApplicable);
}

TEST_F(Undo, AnErasedEntityComesBackAndGoesAgain) {
  const auto line = addLine();
  command(L"删", [&] { AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->erase(); });
  db.undo().undo();
  EXPECT_FALSE(line.isErased());
  db.undo().redo();
  EXPECT_TRUE(line.isErased());
}

TEST_F(Undo, ALayerMadeInTheCommandIsGoneFromItsTableAfterUndo) {
  command(L"层", [&] { addLayer(L"新层"); });
  db.undo().undo();
  EXPECT_FALSE(db.tableOf("LAYER")->has(L"新层"));
  db.undo().redo();
  EXPECT_TRUE(db.tableOf("LAYER")->has(L"新层"));
}

TEST_F(Undo, ARenameIsTakenBackInTheLookUpToo) {
  const auto layer = addLayer(L"旧");
  command(L"改名", [&] { AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setName(L"新"); });
  db.undo().undo();
  EXPECT_TRUE(db.tableOf("LAYER")->has(L"旧"));
  EXPECT_FALSE(db.tableOf("LAYER")->has(L"新"));
}

TEST_F(Undo, TheCurrentLayerIsTakenBack) {
  const auto zero = db.clayer();
  const auto layer = addLayer(L"管线");
  command(L"当前", [&] { db.setClayer(layer); });
  EXPECT_EQ(db.clayer(), layer);
  db.undo().undo();
  EXPECT_EQ(db.clayer(), zero);
}

TEST_F(Undo, ExtendedDataAndXrecordsAreTakenBack) {
  const auto line = addLine();
  db.registerApplication(L"测试");
  AcDbObjectId xrecord;
  command(L"建", [&] {
    AcDbDictionary* root = nullptr;
    ASSERT_EQ(db.getNamedObjectsDictionary(root, AcDb::kForWrite), Acad::eOk);
    auto* record = new AcDbXrecord;
    ASSERT_EQ(root->setAt(L"设置", record, xrecord), Acad::eOk);
    record->setFromRbChain(*ResbufBuilder().text(1, L"一").chain());
    record->close();
    root->close();
    AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)
        ->setXData(ResbufBuilder().text(1001, L"测试").text(1000, L"值").chain());
  });
  db.undo().undo();
  EXPECT_EQ(at<AcDbLine>(line).xData(), nullptr);
  AcDbObjectPointer<AcDbDictionary> root(db.namedObjectsDictionaryId(), AcDb::kForRead);
  AcDbObjectId found;
  EXPECT_EQ(root->getAt(L"设置", found), Acad::eKeyNotFound);
  root.close();
  db.undo().redo();
  root.open(db.namedObjectsDictionaryId(), AcDb::kForRead);
  EXPECT_EQ(root->getAt(L"设置", found), Acad::eOk);
  EXPECT_EQ(found, xrecord);
}

TEST_F(Undo, ACancelledCommandLeavesTheDrawingAsItWas) {
  const auto line = addLine();
  const auto before = state();
  db.undo().beginCommand(L"中断");
  AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setColorIndex(1);
  addLine(3);
  addLayer(L"半成品");
  db.undo().cancelCommand();
  EXPECT_EQ(state(), before);
  EXPECT_EQ(db.undo().commandCount(), 0u);
}

TEST_F(Undo, ACommandThatChangesNothingLeavesNoTrace) {
  const auto line = addLine();
  command(L"看", [&] { AcDbObjectPointer<AcDbLine> opened(line, AcDb::kForWrite); });
  EXPECT_EQ(db.undo().commandCount(), 0u);
}

TEST_F(Undo, WhatCameAndWentWithinACommandLeavesNoTrace) {
  const auto line = addLine();
  AcDbObjectId passing;
  command(L"量", [&] {
    passing = addLine(5);
    AcDbObjectPointer<AcDbLine>(passing, AcDb::kForWrite)->erase();
  });
  EXPECT_EQ(db.undo().undoName(), L"");
  command(L"改", [&] {
    passing = addLine(6);
    AcDbObjectPointer<AcDbLine>(passing, AcDb::kForWrite)->erase();
    AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->erase();
  });
  ASSERT_EQ(db.undo().undo(), Acad::eOk);
  EXPECT_FALSE(line.isErased());
  ASSERT_EQ(db.undo().redo(), Acad::eOk);
  EXPECT_TRUE(line.isErased());
  EXPECT_TRUE(passing.isErased());
}

TEST_F(Undo, NestedCommandsCountAsOne) {
  const auto line = addLine();
  command(L"外", [&] {
    AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setColorIndex(1);
    command(L"内", [&] { AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setColorIndex(2); });
  });
  EXPECT_EQ(db.undo().commandCount(), 1u);
  EXPECT_EQ(db.undo().undoName(), L"外");
  db.undo().undo();
  EXPECT_EQ(at<AcDbLine>(line).colorIndex(), 256);
}

TEST_F(Undo, ANewCommandForgetsWhatCouldBeRepeated) {
  const auto line = addLine();
  command(L"一", [&] { AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setColorIndex(1); });
  db.undo().undo();
  command(L"二", [&] { AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setColorIndex(2); });
  EXPECT_EQ(db.undo().redo(), Acad::eNotApplicable);
}

TEST_F(Undo, NothingIsTakenBackWhileACommandRuns) {
  const auto line = addLine();
  command(L"一", [&] { AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setColorIndex(1); });
  db.undo().beginCommand(L"二");
  EXPECT_EQ(db.undo().undo(), Acad::eNotApplicable);
  db.undo().endCommand();
}

TEST_F(Undo, MemoryIsBoundedAndTheLatestCommandStays) {
  const auto line = addLine();
  db.undo().setByteLimit(2000);
  for (int i = 1; i <= 100; ++i)
    command(L"改", [&] { AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setColorIndex(i); });
  EXPECT_LT(db.undo().bytes(), 4000u);
  EXPECT_LT(db.undo().commandCount(), 20u);
  EXPECT_EQ(db.undo().undo(), Acad::eOk);
  EXPECT_EQ(at<AcDbLine>(line).colorIndex(), 99);
}

TEST_F(Undo, ManyStepsBackAndForthEndWhereTheyBegan) {
  const auto line = addLine();
  for (int i = 1; i <= 20; ++i)
    command(L"改", [&] {
      AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setColorIndex(i);
      if (i % 3 == 0) addLine(i);
      if (i % 5 == 0) addLayer((L"层" + CString(static_cast<wchar_t>(L'a' + i))).GetString());
    });
  const auto last = state();
  for (int i = 0; i < 20; ++i) ASSERT_EQ(db.undo().undo(), Acad::eOk);
  EXPECT_EQ(at<AcDbLine>(line).colorIndex(), 256);
  for (int i = 0; i < 20; ++i) ASSERT_EQ(db.undo().redo(), Acad::eOk);
  EXPECT_EQ(state(), last);
}
