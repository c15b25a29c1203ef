// Thousands of random events in the dialog of layer groups: its list and the groups stay the same, and what
// is read back from the file afterwards is what they were.
#include "tests/plugin/layers/dialogs/GroupDialogFixture.h"

#include "tests/support/UiRobot.h"

namespace {

class RandomGroupEvents : public GroupDialogFixture, public testing::WithParamInterface<unsigned> {
 protected:
  // Each row is its group, by pointer and, but for blanks at the ends of what was typed, by name.
  void ExpectListShowsGroups(const Dlg& dialog) const {
    ASSERT_EQ(dialog.m_groups.GetRowCount(), manager.Groups().GetSize());
    for (int row = 0; row < dialog.m_groups.GetRowCount(); ++row) {
      ASSERT_EQ(dialog.m_groups.GetRowData(row), manager.Groups()[row]);
      ASSERT_EQ(CString(dialog.m_groups.GetItemText(row, kName)).Trim().ToUtf8(),
                manager.Groups()[row]->GetName().ToUtf8());
    }
  }
};

TEST_P(RandomGroupEvents, KeepListAndGroupsAlike) {
  constexpr int events = 4000;
  UiRobot robot(GetParam());
  Group(L"采暖", {L"甲", L"图中没有"});
  In([&](Dlg& dialog) {
    for (int i = 0; i < events && !HasFatalFailure(); ++i) {
      frontEnd.boxes.clear();
      frontEnd.answers.assign(8, robot.Below(3) == 0 ? IDOK : IDCANCEL);
      robot.Act(dialog);
      ExpectListShowsGroups(dialog);
    }
    frontEnd.boxes.clear();
  });
  EXPECT_TRUE(frontEnd.boxes.empty()) << "no word while the window closes";
  for (const CCADGroupLayer* group : manager.Groups()) EXPECT_FALSE(group->GetName().IsEmpty());
  const CString before = Everything();
  Reload();
  EXPECT_EQ(Everything().ToUtf8(), before.ToUtf8());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomGroupEvents, testing::Range(1u, 5u));

} // namespace
