// Thousands of random events in the dialogs of local resistance: what they show, what they hold and what the
// file holds afterwards stay the same.
#include "host/afx/Numbers.h"
#include "plugin/resistance/dialogs/CZPLocalResistanceMngDlg.h"
#include "plugin/resistance/dialogs/CZPLocalResistanceSettingsDlg.h"
#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"
#include "tests/plugin/resistance/ResistanceFixture.h"
#include "tests/support/DialogFixture.h"
#include "tests/support/UiRobot.h"

namespace {

using namespace dialogtest;
using resistance::kFittingColumns;
using resistance::kTeeFlows;

constexpr int kEvents = 3000;
constexpr int kManagerEvents = 1500; // of which one in six saves, and waits for the disk

class RandomResistanceEvents : public ResistanceFixture, public testing::WithParamInterface<unsigned> {
 protected:
  RandomResistanceEvents() {
    for (const wchar_t* name : {L"闸阀", L"弯头", L"截止阀", L"DN20", L" "}) PutFitting(name, L"1.5");
    PutAllFlows();
    Start();
  }
  // What the file can hold of the store: fittings with names, numbers with two decimals.
  CString Everything() const {
    CString text;
    for (const CZPPipePartsCoe& fitting : store.m_arrPartsCoe) {
      if (fitting.szName.IsEmpty()) continue;
      text += L"[" + fitting.szName + L"]";
      for (const auto& column : kFittingColumns) text += Kept(fitting.*column.coefficient);
    }
    for (const auto& flow : kTeeFlows) text += Kept(store.m_coe3T4T.*flow.coefficient);
    return text;
  }
  static CString Kept(double coefficient) {
    return L" " + ZP::ftoa(_wtof(ZP::ftoa(coefficient, 2, true)), 2, true);
  }
  // Each row of the list is what the commit made of it.
  void ExpectCommitted(const CEditListCtrl& list) const {
    ASSERT_EQ(list.GetRowCount(), store.m_arrPartsCoe.GetSize());
    for (int row = 0; row < list.GetRowCount(); ++row) {
      ASSERT_EQ(store.m_arrPartsCoe[row].szName, list.GetItemText(row, resistance::kNameColumn));
      ASSERT_EQ(store.m_arrPartsCoe[row].dbDN50, _wtof(list.GetItemText(row, 7)));
    }
  }
  UiFrontEndScript frontEnd;
};

TEST_P(RandomResistanceEvents, InTheManagerLeaveWhatItShows) {
  UiRobot robot(GetParam());
  CZPLocalResistanceMngDlg dialog(nullptr);
  dialogtest::Run<CZPLocalResistanceMngDlg>(frontEnd, dialog, [&](CZPLocalResistanceMngDlg& open) {
    auto& list = open.m_fittings.m_list;
    int committed = 0;
    for (int i = 0; i < kManagerEvents && !HasFatalFailure(); ++i) {
      robot.Act(open);
      ASSERT_TRUE(list.GetCurSel() < list.GetRowCount());
      if (robot.Below(20) != 0 || !open.m_apply.UserClick() || open.m_sheet.GetActiveIndex() != 0) continue;
      ++committed;
      ExpectCommitted(list);
    }
    EXPECT_GT(committed, 10);
    EXPECT_TRUE(open.m_sheet.UserSelect(0));
    EXPECT_TRUE(open.m_apply.UserClick());
    ExpectCommitted(list);
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  const CString before = Everything();
  EXPECT_EQ(Reload(), 0);
  EXPECT_EQ(Utf8(Everything()), Utf8(before));
}

TEST_P(RandomResistanceEvents, InASectionKeepItAndItsSumUpToDate) {
  UiRobot robot(GetParam());
  CZPLocalResistanceSettings section;
  section.m_strDN = L"DN32";
  section.m_dAdditionCoe = 0.125;
  for (int i = 0; i < 3; ++i) {
    CZPPipeParts part(L"弯头", i);
    section.m_arrParts.Add(part);
  }
  CZPLocalResistanceSettings last;
  frontEnd.runs = {[&](CDialog& shown) {
    auto& open = static_cast<CZPLocalResistanceSettingsDlg&>(shown);
    std::size_t mostRows = 0;
    for (int i = 0; i < kEvents && !HasFatalFailure(); ++i) {
      frontEnd.runs = {[&](CDialog& manager) { // whatever comes of it
        for (int j = 0; j < 10; ++j) robot.Act(manager);
        if (robot.Below(2) == 0) manager.UserEnter();
      }};
      if (robot.Below(6) == 0) { // the robot seldom hits a name
        const auto& names = *open.m_grid.Cell(open.m_grid.GetRowCount() - 1, 0).choices;
        open.m_grid.UserChoose(robot.Index(open.m_grid.GetRowCount()), 0,
                               names[static_cast<std::size_t>(robot.Below(static_cast<int>(names.size())))]);
      } else {
        robot.Act(open);
      }
      if (open.m_grid.CurrentEdit()) continue;
      const auto& now = open.Section();
      const auto& grid = open.m_grid;
      mostRows = std::max(mostRows, static_cast<std::size_t>(grid.GetRowCount()));
      ASSERT_EQ(grid.GetRowCount(), now.m_arrParts.GetSize() + 2) << "heading and input row";
      ASSERT_FALSE(grid.CanEdit(grid.GetRowCount() - 1, 3));
      for (int row = 1; row < grid.GetRowCount() - 1; ++row) {
        ASSERT_EQ(grid.GetItemText(row, 0), now.m_arrParts[row - 1].GetName());
        ASSERT_EQ(_wtoi(grid.GetItemText(row, 3)), now.m_arrParts[row - 1].GetNumber());
        ASSERT_EQ(now.FindPipeParts(grid.GetItemText(row, 0)), row - 1) << "each name in one row";
      }
      for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
        ASSERT_EQ(now.m_num3T4T.*kTeeFlows[flow].count, _wtoi(open.m_counts[flow].GetText()));
      ASSERT_EQ(now.m_dOtherCoe, _wtof(open.m_other.GetText()));
      ASSERT_EQ(now.m_dAdditionCoe, 0.125);
      ASSERT_EQ(now.m_strDN, L"DN32");
    }
    EXPECT_GT(mostRows, 3u);
    EXPECT_TRUE(open.m_other.UserType(L"1"));
    EXPECT_EQ(open.m_total.GetText(), ZP::ftoa(open.Section().GetCoefficient(), 2, true));
    last = open.Section();
    EXPECT_TRUE(open.m_ok.UserClick());
  }};
  EXPECT_EQ(ZP::ShowLRSDlg(section, nullptr), 1);
  EXPECT_EQ(section.m_arrParts.GetSize(), last.m_arrParts.GetSize());
  EXPECT_EQ(section.m_dOtherCoe, 1);
  EXPECT_TRUE(frontEnd.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomResistanceEvents, testing::Range(1u, 4u));

} // namespace
