// The rules of the layer control bar, one by one.
#include "tests/plugin/layers/bar/BarFixture.h"

#include "host/ed/acedColors.h"

namespace {

using namespace layers;

class LayerControlBar : public BarFixture {};

TEST_F(LayerControlBar, IsDockedAtTheLeftAndMayGoToTheRight) {
  Open();
  EXPECT_EQ(bar.GetCaption(), L"当前CAD图纸图层管理");
  EXPECT_EQ(bar.ToolID(), L"{0C9C3FC0-7192-4B0D-BE17-7AB24AAFCFF0}");
  EXPECT_EQ(bar.DockingSides(), CAcUiDockControlBar::kDockLeft | CAcUiDockControlBar::kDockRight);
  EXPECT_EQ(bar.DockedSide(), CAcUiDockControlBar::kDockLeft);
  EXPECT_EQ(bar.m_sources.GetFont().face, L"宋体");
  EXPECT_EQ(bar.m_sources.GetFont().height, 12);
}

TEST_F(LayerControlBar, HasAPlainGridOfFiveColumns) {
  Open();
  EXPECT_EQ(Grid().GetColumnCount(), 5);
  EXPECT_FALSE(Grid().IsEditable());
  EXPECT_FALSE(Grid().HasGridLines());
  EXPECT_FALSE(Grid().ShowsColumnTitles());
  EXPECT_EQ(Grid().Images().size(), 6u);
  EXPECT_FALSE(Grid().UserBeginEdit(0, kNameColumn));
}

TEST_F(LayerControlBar, OffersAllLayersAndEachGroup) {
  Group(L"采暖", {L"丙", L"甲"});
  Group(L"空组");
  Open();
  ASSERT_EQ(bar.m_sources.GetCount(), 3);
  EXPECT_EQ(bar.m_sources.GetLBText(0), L"全部图层");
  EXPECT_EQ(bar.m_sources.GetLBText(1), L"采暖");
  EXPECT_EQ(bar.m_sources.GetLBText(2), L"空组");
  EXPECT_EQ(bar.m_sources.GetCurSel(), 0);
  EXPECT_EQ(Names(), L"0 甲 乙 丙 丁");
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  EXPECT_EQ(Names(), L"丙 甲") << "in the order of the group";
  EXPECT_TRUE(bar.m_sources.UserSelect(2));
  EXPECT_EQ(Names(), L"");
  EXPECT_TRUE(bar.m_sources.UserSelect(0));
  EXPECT_EQ(Names(), L"0 甲 乙 丙 丁");
}

TEST_F(LayerControlBar, ShowsTheStateOfEachLayer) {
  Change(L"甲", &AcDbLayerTableRecord::setIsOff);
  Change(L"乙", &AcDbLayerTableRecord::setIsFrozen);
  Change(L"丙", &AcDbLayerTableRecord::setIsLocked);
  {
    const AcDbObjectPointer<AcDbLayerTableRecord> record(WorkingDrawing::LayerOf(Database(), L"丁"),
                                                         AcDb::kForWrite);
    AcCmColor red;
    red.setColorIndex(1);
    record->setColor(red);
  }
  Open();
  EXPECT_EQ(Icons(L"0"), L"0 1 2");
  EXPECT_EQ(Icons(L"甲"), L"3 1 2");
  EXPECT_EQ(Icons(L"乙"), L"0 4 2");
  EXPECT_EQ(Icons(L"丙"), L"0 1 5");
  EXPECT_EQ(Grid().Cell(Row(L"丁"), kColourColumn).background, RGB(255, 0, 0));
  EXPECT_EQ(Grid().Cell(Row(L"0"), kColourColumn).background, acedGetRGB(7));
  EXPECT_EQ(Grid().GetItemText(0, kColourColumn), L"");
}

TEST_F(LayerControlBar, ShowsLayersThatTheDrawingLacksAsPlainOnes) {
  Group(L"别的图", {L"图中没有", L"甲", L""});
  Change(L"甲", &AcDbLayerTableRecord::setIsLocked);
  Open();
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  EXPECT_EQ(Icons(L"图中没有"), L"0 1 2");
  EXPECT_EQ(Grid().Cell(0, kColourColumn).background, acedGetRGB(255));
  EXPECT_EQ(Icons(L"甲"), L"0 1 5");
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(LayerControlBar, IsEmptyWhereTheLayersCannotBeRead) {
  const RefusedLocks refused;
  Open();
  EXPECT_EQ(Names(), L"");
}

TEST_F(LayerControlBar, ShowsTheDefaultsWhereTheDocumentCannotBeLocked) {
  Group(L"采暖", {L"甲"});
  Change(L"甲", &AcDbLayerTableRecord::setIsOff);
  Open();
  const RefusedLocks refused;
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  EXPECT_EQ(Icons(L"甲"), L"0 1 2");
}

TEST_F(LayerControlBar, SwitchesALayerOffAndOn) {
  Open();
  Click(L"甲", kOffColumn);
  EXPECT_EQ(Off(), L"甲 ");
  EXPECT_EQ(Icons(L"甲"), L"3 1 2");
  Click(L"甲", kOffColumn);
  EXPECT_EQ(Off(), L"");
  EXPECT_EQ(Icons(L"甲"), L"0 1 2");
  EXPECT_EQ(Sent(), L"");
}

TEST_F(LayerControlBar, FreezesALayerAndThawsItWithARegeneration) {
  Open();
  Click(L"乙", kFrozenColumn);
  EXPECT_EQ(Frozen(), L"乙 ");
  EXPECT_EQ(Icons(L"乙"), L"0 4 2");
  EXPECT_EQ(Sent(), L"") << "freezing sends nothing";
  Click(L"乙", kFrozenColumn);
  EXPECT_EQ(Frozen(), L"");
  EXPECT_EQ(Icons(L"乙"), L"0 1 2");
  EXPECT_EQ(Sent(), L"regen\n");
}

TEST_F(LayerControlBar, LocksALayerAndUnlocksIt) {
  Open();
  Click(L"丙", kLockedColumn);
  EXPECT_EQ(Locked(), L"丙 ");
  EXPECT_EQ(Icons(L"丙"), L"0 1 5");
  Click(L"丙", kLockedColumn);
  EXPECT_EQ(Locked(), L"");
  EXPECT_EQ(Sent(), L"");
}

TEST_F(LayerControlBar, SwitchesTheCurrentLayerOffButDoesNotFreezeIt) {
  MakeCurrent(L"甲");
  Open();
  Click(L"甲", kFrozenColumn);
  EXPECT_EQ(Icons(L"甲"), L"0 1 2");
  EXPECT_EQ(Frozen(), L"");
  EXPECT_EQ(Sent(), L"");
  Click(L"甲", kOffColumn);
  EXPECT_EQ(Off(), L"甲 ");
}

// Rows go by their texts: a group may spell the current layer in other letters than the drawing does. The
// host then refuses what the icon already shows.
TEST_F(LayerControlBar, KnowsTheCurrentLayerByItsLettersAlone) {
  WorkingDrawing::AddLayerTo(Database(), L"Pipe");
  MakeCurrent(L"Pipe");
  Group(L"大写", {L"PIPE"});
  Open();
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  Click(L"PIPE", kFrozenColumn);
  EXPECT_EQ(Icons(L"PIPE"), L"0 4 2");
  EXPECT_EQ(Frozen(), L"");
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  EXPECT_EQ(Icons(L"PIPE"), L"0 1 2") << "until it is filled again";
}

TEST_F(LayerControlBar, GivesTheKeyboardBackToTheFrame) {
  Open();
  Click(L"甲", kNameColumn);
  EXPECT_EQ(frame.activations, 1);
  Click(L"甲", kColourColumn);
  EXPECT_EQ(frame.activations, 2);
  EXPECT_EQ(Off() + Frozen() + Locked(), L"") << "these columns switch nothing";
  for (const int column : {kOffColumn, kFrozenColumn, kLockedColumn}) {
    frame.activations = 0;
    Click(L"甲", column);
    EXPECT_EQ(frame.activations, 2) << column;
  }
  EXPECT_EQ(Grid().GetFocusRow(), -1) << "no mark covers what the cells show";
}

TEST_F(LayerControlBar, TakesNoClickBesideItsRows) {
  Open();
  for (const auto& [row, column] : {std::pair(-1, 1), {5, 1}, {0, -1}, {0, 5}})
    EXPECT_FALSE(Grid().UserPress(row, column));
  EXPECT_EQ(frame.activations, 0);
  EXPECT_EQ(Off(), L"");
}

TEST_F(LayerControlBar, IsNotSwitchedByKeysThatMoveNorByTheRightButton) {
  Open();
  EXPECT_TRUE(Grid().UserClick(1, kOffColumn));
  EXPECT_EQ(Grid().GetFocusRow(), 1);
  EXPECT_TRUE(Grid().UserOpenMenu(2, kLockedColumn));
  EXPECT_EQ(Off() + Locked(), L"");
  EXPECT_EQ(frame.activations, 0);
}

TEST_F(LayerControlBar, DoesNotFollowWhatHappensElsewhere) {
  Open();
  Change(L"甲", &AcDbLayerTableRecord::setIsOff);
  EXPECT_EQ(Icons(L"甲"), L"0 1 2");
  Click(L"甲", kLockedColumn);
  EXPECT_EQ(Icons(L"甲"), L"0 1 5");
  EXPECT_EQ(Off(), L"甲 ") << "the click read the layer afresh";
  acDocManagerPtr()->newDocument();
  EXPECT_EQ(Names(), L"0 甲 乙 丙 丁");
  Click(L"甲", kOffColumn);
  EXPECT_EQ(Icons(L"甲"), L"3 1 5") << "the other drawing has no such layer";
  EXPECT_FALSE(HasLayer(L"甲"));
  bar.Refresh();
  EXPECT_EQ(Names(), L"0");
}

TEST_F(LayerControlBar, ChangesTheIconOfALayerThatCannotBeWritten) {
  Open();
  {
    const AcDbObjectPointer<AcDbLayerTableRecord> held(WorkingDrawing::LayerOf(Database(), L"甲"),
                                                       AcDb::kForWrite);
    Click(L"甲", kOffColumn);
    EXPECT_EQ(Icons(L"甲"), L"3 1 2");
  }
  EXPECT_EQ(Off(), L"");
  {
    const RefusedLocks refused;
    Click(L"乙", kLockedColumn);
    EXPECT_EQ(Icons(L"乙"), L"0 1 5");
  }
  EXPECT_EQ(Locked(), L"");
  EXPECT_TRUE(ui.boxes.empty());
  EXPECT_TRUE(acDocManagerPtr()->curDocument()->isQuiescent()) << "locks are given back";
}

TEST_F(LayerControlBar, TellsWhatItsIconsMean) {
  Open();
  for (int icon = 0; icon < 6; ++icon) EXPECT_FALSE(Grid().ImageName(icon).IsEmpty()) << icon;
  EXPECT_EQ(Grid().ImageName(kOnIcon), L"开");
  EXPECT_EQ(Grid().ImageName(kThawedIcon), L"解冻");
  EXPECT_EQ(Grid().ImageName(kUnlockedIcon), L"解锁");
  EXPECT_EQ(Grid().ImageName(kOffIcon), L"关");
  EXPECT_EQ(Grid().ImageName(kFrozenIcon), L"冻结");
  EXPECT_EQ(Grid().ImageName(kLockedIcon), L"锁定");
}

// --- the menu

TEST_F(LayerControlBar, SwitchesAllRowsOffWithTheCurrentLayer) {
  MakeCurrent(L"甲");
  Open();
  Choose(L"全部关闭");
  EXPECT_EQ(Off(), L"0 甲 乙 丙 丁 ");
  EXPECT_EQ(Icons(L"甲"), L"3 1 2");
  Choose(L"全部打开");
  EXPECT_EQ(Off(), L"");
  EXPECT_EQ(Icons(L"丁"), L"0 1 2");
  EXPECT_EQ(Sent(), L"");
}

TEST_F(LayerControlBar, FreezesAllRowsButTheCurrentLayer) {
  MakeCurrent(L"甲");
  Open();
  Choose(L"全部冻结");
  EXPECT_EQ(Frozen(), L"0 乙 丙 丁 ");
  EXPECT_EQ(Icons(L"甲"), L"0 1 2");
  EXPECT_EQ(Icons(L"乙"), L"0 4 2");
  EXPECT_EQ(Sent(), L"");
  Choose(L"全部解冻");
  EXPECT_EQ(Frozen(), L"");
  EXPECT_EQ(Icons(L"乙"), L"0 1 2");
  EXPECT_EQ(Sent(), L"regen\n") << "once";
}

TEST_F(LayerControlBar, LocksAllRows) {
  Open();
  Choose(L"全部锁定");
  EXPECT_EQ(Locked(), L"0 甲 乙 丙 丁 ");
  EXPECT_EQ(Icons(L"0"), L"0 1 5");
  Choose(L"全部解锁");
  EXPECT_EQ(Locked(), L"");
  EXPECT_EQ(Icons(L"0"), L"0 1 2");
}

TEST_F(LayerControlBar, LeavesTheOtherSwitchesOfEachRowAsTheDrawingHasThem) {
  Open();
  Change(L"甲", &AcDbLayerTableRecord::setIsLocked);
  Change(L"乙", &AcDbLayerTableRecord::setIsFrozen);
  Choose(L"全部关闭");
  EXPECT_EQ(Locked(), L"甲 ");
  EXPECT_EQ(Frozen(), L"乙 ");
  EXPECT_EQ(Icons(L"甲"), L"3 1 2") << "the other icons are not looked after";
}

TEST_F(LayerControlBar, WorksOnTheRowsOfTheGroupAlone) {
  Group(L"采暖", {L"丙", L"图中没有", L"甲"});
  Open();
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  frame.activations = 0;
  Choose(L"全部锁定");
  EXPECT_EQ(Locked(), L"甲 丙 ");
  EXPECT_EQ(Icons(L"图中没有"), L"0 1 5");
  EXPECT_EQ(frame.activations, 3) << "after each row";
}

TEST_F(LayerControlBar, SwitchesWhatItDoesNotShow) {
  Group(L"采暖", {L"丙", L"甲"});
  Open();
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  frame.activations = 0;
  Choose(L"关闭其他图层");
  EXPECT_EQ(Off(), L"0 乙 丁 ");
  EXPECT_EQ(Icons(L"甲"), L"0 1 2");
  EXPECT_EQ(frame.activations, 1);
  Choose(L"打开其他图层");
  EXPECT_EQ(Off(), L"");
  EXPECT_TRUE(acDocManagerPtr()->curDocument()->isQuiescent());
}

TEST_F(LayerControlBar, HasNoOtherLayersWhileItShowsAll) {
  Open();
  Choose(L"关闭其他图层");
  EXPECT_EQ(Off(), L"");
}

TEST_F(LayerControlBar, SwitchesAllLayersAsTheOthersOfAnEmptyGroup) {
  Group(L"空组");
  Open();
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  Choose(L"关闭其他图层");
  EXPECT_EQ(Off(), L"0 甲 乙 丙 丁 ");
}

TEST_F(LayerControlBar, LeavesTheOthersAloneWhereTheDocumentCannotBeLocked) {
  Group(L"空组");
  Open();
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  frame.activations = 0;
  const RefusedLocks refused;
  Choose(L"关闭其他图层");
  EXPECT_EQ(Off(), L"");
  EXPECT_EQ(frame.activations, 0);
}

TEST_F(LayerControlBar, OffersItsCommandsInTheirOrderAlsoBesideTheRows) {
  Group(L"空组");
  Open();
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  EXPECT_TRUE(Grid().UserOpenMenu(-1, 0));
  CString labels;
  for (const UiMenuItem& item : Grid().Menu.Items()) labels += item.text + L" ";
  EXPECT_EQ(labels, L"全部关闭 全部打开 全部冻结 全部解冻 全部锁定 全部解锁 打开其他图层 关闭其他图层 ");
}

// --- without what it needs

TEST_F(LayerControlBar, StandsEmptyWithoutADrawing) {
  Group(L"采暖", {L"甲"});
  acDocManagerPtr()->closeAll();
  Open();
  EXPECT_EQ(Names(), L"");
  EXPECT_TRUE(bar.m_sources.UserSelect(1));
  EXPECT_EQ(Icons(L"甲"), L"0 1 2");
  for (int column = kNameColumn; column <= kColourColumn; ++column) Click(L"甲", column);
  for (const UiMenuItem& item : Grid().Menu.Items()) Choose(item.text);
}

TEST_F(LayerControlBar, WorksWithoutAFrame) {
  Open();
  editor.frame = nullptr;
  Click(L"甲", kOffColumn);
  Choose(L"全部锁定");
  EXPECT_EQ(Off(), L"甲 ");
  EXPECT_EQ(Locked(), L"0 甲 乙 丙 丁 ");
}

} // namespace
