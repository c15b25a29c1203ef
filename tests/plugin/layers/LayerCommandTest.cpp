#include "tests/plugin/layers/DrawingFixture.h"

namespace {

using Record = AcDbLayerTableRecord;

// The six commands that change layers by selected entities, with the state that they set.
struct StateCommand {
  const wchar_t* name;
  bool (Record::*state)() const;
  Acad::ErrorStatus (Record::*set)(bool);
  bool others;
};

constexpr StateCommand kCommands[] = {
    {L"KOR_GBTC", &Record::isOff, &Record::setIsOff, false},
    {L"KOR_GBQT", &Record::isOff, &Record::setIsOff, true},
    {L"KOR_DJTC", &Record::isFrozen, &Record::setIsFrozen, false},
    {L"KOR_DJQT", &Record::isFrozen, &Record::setIsFrozen, true},
    {L"KOR_SDTC", &Record::isLocked, &Record::setIsLocked, false},
    {L"KOR_SDQT", &Record::isLocked, &Record::setIsLocked, true},
};

class LayerStateCommand : public DrawingFixture, public testing::WithParamInterface<StateCommand> {
 protected:
  // Layer 0 is the current one, which the host doesn't let anybody freeze.
  CString Expected(const wchar_t* selected, const wchar_t* others) const {
    if (!GetParam().others) return selected;
    return GetParam().state == &Record::isFrozen ? CString(others) : L"0 " + CString(others);
  }
};

TEST_P(LayerStateCommand, ChangesExactlyItsLayersForEntitiesOfTwoLayers) {
  const AcDbObjectId another = LineOn(L"甲");
  editor.Run(GetParam().name, {Named(onA), Named(onB), Named(another), L""});
  EXPECT_EQ(LayersThat(GetParam().state), Expected(L"甲 乙 ", L"丙 丁 "));
  EXPECT_TRUE(editor.lines.empty());
  EXPECT_TRUE(editor.refused.empty());
  EXPECT_EQ(regens, 0);
}

TEST_P(LayerStateCommand, TakesWhatWasSelectedBefore) {
  acDocManagerPtr()->curDocument()->edit().pickFirst = {onC};
  editor.Run(GetParam().name);
  EXPECT_EQ(LayersThat(GetParam().state), Expected(L"丙 ", L"甲 乙 丁 "));
  EXPECT_TRUE(editor.prompts.empty());
}

TEST_P(LayerStateCommand, AsksAgainUntilSomethingIsSelected) {
  editor.Run(GetParam().name, {L"", L"", Named(onA), L""});
  EXPECT_EQ(LayersThat(GetParam().state), Expected(L"甲 ", L"乙 丙 丁 "));
  EXPECT_GE(editor.prompts.size(), 4u);
  EXPECT_GE(editor.prompts[0].Find(L"请选择实体:"), 0);
}

TEST_P(LayerStateCommand, ChangesNothingWhenCancelled) {
  editor.Run(GetParam().name, {L"*cancel*"});
  EXPECT_EQ(LayersThat(GetParam().state), L"");
  editor.Run(GetParam().name, {Named(onA), L"*cancel*"});
  EXPECT_EQ(LayersThat(GetParam().state), L"");
}

TEST_P(LayerStateCommand, EndsWhenThereIsNoMoreInput) {
  editor.Run(GetParam().name, {L""});
  EXPECT_EQ(LayersThat(GetParam().state), L"");
}

TEST_P(LayerStateCommand, IsOneStepToUndoAndRedo) {
  const CString expected = Expected(L"甲 ", L"乙 丙 丁 ");
  editor.Run(GetParam().name, {Named(onA), L""});
  EXPECT_EQ(Database().undo().undo(), Acad::eOk);
  EXPECT_EQ(LayersThat(GetParam().state), L"");
  EXPECT_EQ(Database().undo().redo(), Acad::eOk);
  EXPECT_EQ(LayersThat(GetParam().state), expected);
}

TEST_P(LayerStateCommand, ClosesAllThatItOpens) {
  editor.Run(GetParam().name, {Named(onA), L""});
  EXPECT_TRUE(acDocManagerPtr()->curDocument()->isQuiescent());
  const AcDbObjectPointer<AcDbLayerTable> table(Database().layerTableId(), AcDb::kForWrite);
  EXPECT_EQ(table.openStatus(), Acad::eOk);
  for (const AcDbObjectId& id : table->records())
    EXPECT_EQ(AcDbObjectPointer<Record>(id, AcDb::kForWrite).openStatus(), Acad::eOk);
}

INSTANTIATE_TEST_SUITE_P(All, LayerStateCommand, testing::ValuesIn(kCommands),
                         [](const auto& test) { return CString(test.param.name).ToUtf8(); });

using LayerCommand = DrawingFixture;

TEST_F(LayerCommand, LeavesTheCurrentLayerToTheHost) {
  Database().setClayer(WorkingDrawing::LayerOf(Database(), L"甲"));
  editor.Run(L"KOR_DJTC", {Named(onA), L""});
  EXPECT_FALSE(Layer(L"甲").isFrozen()) << "the host refuses to freeze the current layer";
  editor.Run(L"KOR_GBTC", {Named(onA), L""});
  EXPECT_TRUE(Layer(L"甲").isOff());
}

TEST_F(LayerCommand, WorksOnALockedLayer) {
  Change(L"甲", &Record::setIsLocked);
  editor.Run(L"KOR_GBTC", {Named(onA), L""});
  EXPECT_TRUE(Layer(L"甲").isOff());
}

TEST_F(LayerCommand, DoesNothingWhileSomebodyHoldsTheLayerTable) {
  {
    const AcDbObjectPointer<AcDbLayerTable> held(Database().layerTableId(), AcDb::kForRead);
    editor.Run(L"KOR_GBTC", {Named(onA), L""});
    editor.Run(L"KOR_GBQT", {Named(onA), L""});
    editor.Run(L"KOR_SDTC", {Named(onA), L""});
    editor.Run(L"KOR_JDQBTC");
    editor.Run(L"KOR_TCHF");
  }
  EXPECT_EQ(LayersThat(&Record::isOff), L"");
  EXPECT_EQ(LayersThat(&Record::isLocked), L"");
  EXPECT_EQ(regens, 0) << "nothing changed, nothing to draw anew";
}

TEST_F(LayerCommand, PassesOverALayerThatSomebodyHolds) {
  {
    const AcDbObjectPointer<Record> held(WorkingDrawing::LayerOf(Database(), L"甲"), AcDb::kForRead);
    editor.Run(L"KOR_GBTC", {Named(onA), Named(onB), L""});
    editor.Run(L"KOR_SDQT", {Named(onB), L""});
  }
  EXPECT_EQ(LayersThat(&Record::isOff), L"乙 ");
  EXPECT_EQ(LayersThat(&Record::isLocked), L"0 丙 丁 ");
}

TEST_F(LayerCommand, SkipsErasedLayers) {
  Change(L"丁", &Record::setIsOff);
  {
    const AcDbObjectPointer<Record> record(WorkingDrawing::LayerOf(Database(), L"丁"), AcDb::kForWrite);
    record->erase();
  }
  editor.Run(L"KOR_DKQBTC");
  const AcDbObjectPointer<AcDbLayerTable> table(Database().layerTableId(), AcDb::kForRead);
  const auto& erased = *static_cast<Record*>(table->records().back().object());
  EXPECT_TRUE(erased.isErased());
  EXPECT_TRUE(erased.isOff());
}

class AllLayersCommand : public DrawingFixture {
 protected:
  AllLayersCommand() {
    Change(L"甲", &Record::setIsOff);
    Change(L"乙", &Record::setIsFrozen);
    Change(L"丙", &Record::setIsLocked);
    Change(L"丁", &Record::setVPDFLT);
    Change(L"0", &Record::setIsLocked);
  }
  CString States() {
    return L"off " + LayersThat(&Record::isOff) + L"frozen " + LayersThat(&Record::isFrozen) + L"locked " +
           LayersThat(&Record::isLocked) + L"new viewports " + LayersThat(&Record::VPDFLT);
  }
};

TEST_F(AllLayersCommand, OpenSwitchesAllLayersOn) {
  editor.Run(L"KOR_DKQBTC");
  EXPECT_EQ(States(), L"off frozen 乙 locked 0 丙 new viewports 丁 ");
  EXPECT_EQ(regens, 0);
}

TEST_F(AllLayersCommand, UnFrozenThawsAllLayersAndRegenerates) {
  editor.Run(L"KOR_JDQBTC");
  EXPECT_EQ(States(), L"off 甲 frozen locked 0 丙 new viewports 丁 ");
  EXPECT_EQ(regens, 1);
}

TEST_F(AllLayersCommand, UnLockedUnlocksAllLayers) {
  editor.Run(L"KOR_JSQBTC");
  EXPECT_EQ(States(), L"off 甲 frozen 乙 locked new viewports 丁 ");
  EXPECT_EQ(regens, 0);
}

TEST_F(AllLayersCommand, ResumeClearsEveryStateWhateverItWasBeforeAndRegenerates) {
  editor.Run(L"KOR_TCHF");
  EXPECT_EQ(States(), L"off frozen locked new viewports ");
  EXPECT_EQ(regens, 1);
}

TEST_F(AllLayersCommand, RegeneratesAfterTheCommandHasReturned) {
  Register(L"DURING", [] {
    ZP::UnFrozenAllLayers();
    EXPECT_EQ(regens, 0);
  });
  editor.Run(L"DURING");
  EXPECT_EQ(regens, 1);
}

TEST_F(AllLayersCommand, DoesNothingWithoutADrawing) {
  acDocManagerPtr()->closeAll();
  ZP::OpenAllLayers();
  ZP::ResumeLayers();
  EXPECT_FALSE(acDocManagerPtr()->hasPendingText());
}

} // namespace
