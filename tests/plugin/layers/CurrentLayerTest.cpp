#include "tests/plugin/layers/DrawingFixture.h"
#include "tests/support/RefusedLocks.h"

namespace {

using CurrentLayer = DrawingFixture;

TEST_F(CurrentLayer, IsTheSystemVariable) {
  EXPECT_EQ(ZP::GetCurrentLayer(), L"0");
  Database().setClayer(WorkingDrawing::LayerOf(Database(), L"甲"));
  EXPECT_EQ(ZP::GetCurrentLayer(), L"甲");
}

TEST_F(CurrentLayer, IsSetByName) {
  ZP::SetCurrentLayer(L"乙");
  EXPECT_EQ(ZP::GetCurrentLayer(), L"乙");
}

TEST_F(CurrentLayer, StaysForAnUnknownName) {
  ZP::SetCurrentLayer(L"无此图层");
  ZP::SetCurrentLayer(L"");
  EXPECT_EQ(ZP::GetCurrentLayer(), L"0");
}

TEST_F(CurrentLayer, BecomesThatOfThePickedEntity) {
  editor.Run(L"KOR_SZDQTC", {Named(onB)});
  EXPECT_EQ(ZP::GetCurrentLayer(), L"乙");
  ASSERT_FALSE(editor.prompts.empty());
  EXPECT_GE(editor.prompts[0].Find(L"请选择实体"), 0);
}

TEST_F(CurrentLayer, StaysWithoutAPick) {
  editor.Run(L"KOR_SZDQTC", {L""});
  editor.Run(L"KOR_SZDQTC", {L"*cancel*"});
  editor.Run(L"KOR_SZDQTC", {});
  EXPECT_EQ(ZP::GetCurrentLayer(), L"0");
}

TEST_F(CurrentLayer, IsNotSetWithoutADrawing) {
  acDocManagerPtr()->closeAll();
  ZP::SetCurrentLayer(L"甲");
  EXPECT_NE(ZP::GetCurrentLayer(), L"甲");
}

class SelectedLayers : public DrawingFixture {
 protected:
  // Selects inside a command, as callers do.
  static inline CStringArray layers;
  static inline bool result = false;
  SelectedLayers() {
    layers.RemoveAll();
    Register(L"SELECT", [] { result = ZP::GetSelectedEntityLayer(layers); });
  }
};

TEST_F(SelectedLayers, NameALayerOncePerEntity) {
  const AcDbObjectId another = LineOn(L"甲");
  editor.Run(L"SELECT", {Named(onA), Named(another), Named(onB), L""});
  EXPECT_TRUE(result);
  ASSERT_EQ(layers.GetSize(), 3);
  EXPECT_EQ(layers[0], L"甲");
  EXPECT_EQ(layers[1], L"甲");
  EXPECT_EQ(layers[2], L"乙");
}

TEST_F(SelectedLayers, AreAppendedToWhatTheListHeld) {
  layers.Add(L"before");
  editor.Run(L"SELECT", {Named(onA), L""});
  ASSERT_EQ(layers.GetSize(), 2);
  EXPECT_EQ(layers[0], L"before");
}

TEST_F(SelectedLayers, AreNoneWhenCancelled) {
  editor.Run(L"SELECT", {L"*cancel*"});
  EXPECT_FALSE(result);
  EXPECT_TRUE(layers.IsEmpty());
}

class AllLayerNames : public DrawingFixture {};

TEST_F(AllLayerNames, AreThoseOfTheDrawingInTableOrder) {
  CStringArray names;
  names.Add(L"before");
  EXPECT_TRUE(ZP::GetCurDwgAllLayer(names));
  ASSERT_EQ(names.GetSize(), 5);
  EXPECT_EQ(names[0], L"0");
  EXPECT_EQ(names[4], L"丁");
  EXPECT_TRUE(acDocManagerPtr()->curDocument()->isQuiescent()) << "the lock is given back";
}

TEST_F(AllLayerNames, LeaveOutErasedLayers) {
  {
    const AcDbObjectPointer<AcDbLayerTableRecord> record(WorkingDrawing::LayerOf(Database(), L"丁"),
                                                         AcDb::kForWrite);
    record->erase();
  }
  CStringArray names;
  EXPECT_TRUE(ZP::GetCurDwgAllLayer(names));
  EXPECT_EQ(names.GetSize(), 4);
}

TEST_F(AllLayerNames, AreNotReadAndTheListStaysWhenTheLockIsRefused) {
  const RefusedLocks refused;
  CStringArray names;
  names.Add(L"before");
  EXPECT_FALSE(ZP::GetCurDwgAllLayer(names));
  EXPECT_EQ(names.GetSize(), 1);
}

TEST_F(AllLayerNames, AreNoneWhenTheTableCannotBeOpened) {
  CStringArray names;
  names.Add(L"before");
  {
    const AcDbObjectPointer<AcDbLayerTable> held(Database().layerTableId(), AcDb::kForWrite);
    EXPECT_FALSE(ZP::GetCurDwgAllLayer(names));
  }
  EXPECT_TRUE(names.IsEmpty()) << "the list is emptied before the table is opened";
  EXPECT_TRUE(acDocManagerPtr()->curDocument()->isQuiescent());
}

TEST_F(AllLayerNames, DoNotGoByTheLockWhenFreezing) {
  acDocManagerPtr()->curDocument()->edit().pickFirst = {onA};
  static bool done;
  done = false;
  // The command holds its lock already; only the one that freezing asks for is refused.
  Register(L"FREEZE", [] {
    const RefusedLocks refused;
    ZP::FrozenSelectedLayer();
    done = true;
  });
  editor.Run(L"FREEZE", {Named(onA), L""});
  EXPECT_TRUE(done);
  EXPECT_TRUE(Layer(L"甲").isFrozen());
  EXPECT_TRUE(acDocManagerPtr()->curDocument()->isQuiescent());
}

} // namespace
