// Thousands of random events in the layer control bar, with drawings that come and go and layers that change
// beside it: it always shows five columns of what it was filled with, and no lock is left.
#include "tests/plugin/layers/bar/BarFixture.h"

#include "tests/support/UiRobot.h"

namespace {

using namespace layers;

class RandomBarEvents : public BarFixture, public testing::WithParamInterface<unsigned> {
 protected:
  void ExpectWhole() {
    for (int row = 0; row < Grid().GetRowCount(); ++row) {
      ASSERT_TRUE(Grid().Cell(row, kColourColumn).background.has_value());
      ASSERT_EQ(Grid().Cell(row, kOffColumn).image % 3, 0);
      ASSERT_EQ(Grid().Cell(row, kFrozenColumn).image % 3, 1);
      ASSERT_EQ(Grid().Cell(row, kLockedColumn).image % 3, 2);
    }
    ASSERT_FALSE(Grid().CurrentEdit());
    ASSERT_TRUE(!acDocManagerPtr()->curDocument() || acDocManagerPtr()->curDocument()->isQuiescent());
  }
  void ChangeBeside(UiRobot& robot) {
    switch (robot.Below(6)) {
    case 0:
      acDocManagerPtr()->newDocument();
      break;
    case 1:
      if (acDocManagerPtr()->documentCount() > 1)
        acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
      break;
    case 2:
      bar.Refresh();
      break;
    case 3:
      WorkingDrawing::AddLayerTo(Database(), L"新");
      break;
    case 4:
      bar.ShowBar(true);
      break;
    default:
      Sent();
    }
  }
};

TEST_P(RandomBarEvents, LeaveItWhole) {
  constexpr int events = 4000;
  UiRobot robot(GetParam());
  Group(L"采暖", {L"甲", L"图中没有", L"", L"甲"});
  Group(L"空组");
  Group(L"", {L"0"});
  Open();
  for (int i = 0; i < events && !HasFatalFailure(); ++i) {
    if (robot.Below(20) == 0) ChangeBeside(robot);
    robot.Act(bar);
    ExpectWhole();
  }
  EXPECT_TRUE(ui.boxes.empty());
  // What the drawing says and what the bar says once it is filled are the same.
  bar.Refresh();
  for (int row = 0; row < Grid().GetRowCount(); ++row) {
    const auto& layer = Layer(Grid().GetItemText(row, kNameColumn));
    EXPECT_EQ(Grid().Cell(row, kOffColumn).image == kOffIcon, layer.isOff());
    EXPECT_EQ(Grid().Cell(row, kFrozenColumn).image == kFrozenIcon, layer.isFrozen());
    EXPECT_EQ(Grid().Cell(row, kLockedColumn).image == kLockedIcon, layer.isLocked());
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomBarEvents, testing::Range(1u, 5u));

} // namespace
