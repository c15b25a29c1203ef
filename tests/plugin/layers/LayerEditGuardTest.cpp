#include "tests/plugin/layers/DrawingFixture.h"

namespace {

using Record = AcDbLayerTableRecord;

class LayerEditGuard : public DrawingFixture {
 protected:
  ~LayerEditGuard() override { ZP::RestoreLayersStatus(); } // or the next test would find the names
  void CloseInEveryWay(const wchar_t* name) {
    Change(name, &Record::setIsLocked);
    Change(name, &Record::setIsFrozen);
    Change(name, &Record::setIsOff);
  }
  static CStringArray Names(std::initializer_list<const wchar_t*> list) {
    CStringArray names;
    for (const wchar_t* name : list) names.Add(name);
    return names;
  }
  CString StateOf(const wchar_t* name) {
    CString state;
    if (Layer(name).isLocked()) state += L"locked ";
    if (Layer(name).isFrozen()) state += L"frozen ";
    if (Layer(name).isOff()) state += L"off ";
    return state;
  }
};

TEST_F(LayerEditGuard, OpensALayerThatIsLockedFrozenAndOffWithThreeWarnings) {
  CloseInEveryWay(L"甲");
  EXPECT_TRUE(ZP::CheckLayerCanEdit(L"甲", true));
  EXPECT_EQ(editor.printed, L"\nwarning:图层\"甲\"被锁定!\nwarning:图层:甲被冻结!\nwarning:图层:甲被关闭!");
  EXPECT_EQ(StateOf(L"甲"), L"");
}

TEST_F(LayerEditGuard, IsSilentWithoutWarn) {
  CloseInEveryWay(L"甲");
  EXPECT_TRUE(ZP::CheckLayerCanEdit(L"甲", false));
  EXPECT_EQ(editor.printed, L"");
  EXPECT_EQ(StateOf(L"甲"), L"");
}

TEST_F(LayerEditGuard, PrintsANameWithADirectiveInItAsItIs) {
  WorkingDrawing::AddLayerTo(Database(), L"100%s");
  Change(L"100%s", &Record::setIsOff);
  ZP::CheckLayerCanEdit(L"100%s", true);
  EXPECT_EQ(editor.printed, L"\nwarning:图层:100%s被关闭!");
}

TEST_F(LayerEditGuard, BringsAllStatesBackOnce) {
  CloseInEveryWay(L"甲");
  Change(L"乙", &Record::setIsOff);
  ZP::CheckLayerCanEdit(Names({L"甲", L"乙", L"丙"}), false);
  EXPECT_TRUE(ZP::RestoreLayersStatus());
  EXPECT_EQ(StateOf(L"甲"), L"locked frozen off ");
  EXPECT_EQ(StateOf(L"乙"), L"off ");
  EXPECT_EQ(StateOf(L"丙"), L"");
  Change(L"甲", &Record::setIsOff, false);
  EXPECT_TRUE(ZP::RestoreLayersStatus());
  EXPECT_EQ(StateOf(L"甲"), L"locked frozen ") << "a second restore has nothing to bring back";
}

TEST_F(LayerEditGuard, AddsUpSeveralChecks) {
  Change(L"甲", &Record::setIsOff);
  ZP::CheckLayerCanEdit(L"甲", false);
  Change(L"乙", &Record::setIsLocked);
  ZP::CheckLayerCanEdit(L"乙", false);
  ZP::CheckLayerCanEdit(L"甲", false);
  ZP::RestoreLayersStatus();
  EXPECT_EQ(StateOf(L"甲"), L"off ");
  EXPECT_EQ(StateOf(L"乙"), L"locked ");
}

TEST_F(LayerEditGuard, SucceedsWithNothingToDo) {
  EXPECT_TRUE(ZP::CheckLayerCanEdit(CStringArray(), true));
  EXPECT_TRUE(ZP::CheckLayerCanEdit(L"甲", true));
  EXPECT_TRUE(ZP::CheckLayerCanEdit(L"无此图层", true));
  EXPECT_EQ(editor.printed, L"");
  EXPECT_TRUE(ZP::RestoreLayersStatus());
}

TEST_F(LayerEditGuard, FailsAndKeepsItsListsWhileTheTableCannotBeOpened) {
  Change(L"甲", &Record::setIsOff);
  ZP::CheckLayerCanEdit(L"甲", false);
  {
    const AcDbObjectPointer<AcDbLayerTable> held(Database().layerTableId(), AcDb::kForWrite);
    EXPECT_FALSE(ZP::CheckLayerCanEdit(L"乙", false));
    EXPECT_FALSE(ZP::CheckLayerCanEdit(CStringArray(), false));
    EXPECT_FALSE(ZP::RestoreLayersStatus());
  }
  EXPECT_EQ(StateOf(L"甲"), L"");
  EXPECT_TRUE(ZP::RestoreLayersStatus());
  EXPECT_EQ(StateOf(L"甲"), L"off ");
}

TEST_F(LayerEditGuard, FailsWithoutADrawing) {
  acDocManagerPtr()->closeAll();
  EXPECT_FALSE(ZP::CheckLayerCanEdit(L"甲", true));
  EXPECT_FALSE(ZP::RestoreLayersStatus());
  acDocManagerPtr()->newDocument();
}

TEST_F(LayerEditGuard, GoesByNamesInWhateverDrawingIsCurrent) {
  Change(L"甲", &Record::setIsOff);
  ZP::CheckLayerCanEdit(L"甲", false);
  acDocManagerPtr()->newDocument();
  WorkingDrawing::AddLayerTo(Database(), L"甲");
  EXPECT_TRUE(ZP::RestoreLayersStatus());
  EXPECT_EQ(StateOf(L"甲"), L"off ");
}

TEST_F(LayerEditGuard, PassesOverALayerThatIsGoneAtTheRestore) {
  Change(L"甲", &Record::setIsOff);
  Change(L"乙", &Record::setIsOff);
  ZP::CheckLayerCanEdit(Names({L"甲", L"乙"}), false);
  {
    const AcDbObjectPointer<Record> record(WorkingDrawing::LayerOf(Database(), L"甲"), AcDb::kForWrite);
    record->erase();
  }
  EXPECT_TRUE(ZP::RestoreLayersStatus());
  EXPECT_EQ(StateOf(L"乙"), L"off ");
}

TEST_F(LayerEditGuard, NeverRegenerates) {
  CloseInEveryWay(L"甲");
  ZP::CheckLayerCanEdit(L"甲", false);
  ZP::RestoreLayersStatus();
  EXPECT_FALSE(acDocManagerPtr()->hasPendingText());
}

} // namespace
