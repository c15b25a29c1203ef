#include "plugin/pipes/dialogs/CZPFlowVelocityMngDlg.h"

#include "plugin/pipes/dialogs/LimitRules.h"
#include "plugin/pipes/dialogs/ShowPipeDialogs.h"
#include "tests/plugin/pipes/limits/LimitFixture.h"
#include "tests/support/DialogFixture.h"

namespace {

using namespace dialogtest;
using Dlg = CZPFlowVelocityMngDlg;

class FlowVelocityDlg : public LimitFixture {
 protected:
  FlowVelocityDlg() {
    AddRow(L"20", 0.3, 0.8);
    AddRow(L"25", 0.35, 1);
  }
  int In(const std::function<void(Dlg&)>& test) {
    Dlg dialog(nullptr);
    return dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  UiFrontEndScript frontEnd;
};

TEST(LimitRules, ANameBeginsWithANumberAndEndsInOne) {
  for (const wchar_t* text : {L"25", L"25.5", L"1e2", L"25x30", L".5"})
    EXPECT_TRUE(pipes::IsLimitName(text)) << Utf8(text);
  for (const wchar_t* text : {L"", L"0", L"-5", L"DN25", L"25mm", L"20.", L"nan5", L"x"})
    EXPECT_FALSE(pipes::IsLimitName(text)) << Utf8(text);
}

TEST_F(FlowVelocityDlg, SortKeepsEqualNumbersInTheirOrder) {
  Empty();
  for (const wchar_t* name : {L"32", L"x", L"20.0", L"nan", L"20", L"100"}) AddRow(name);
  pipes::SortLimits(table);
  EXPECT_EQ(Names(), L"x nan 20.0 20 32 100");
}

TEST_F(FlowVelocityDlg, ShowsTheTableAndAnEmptyRow) {
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"管道流速管理器");
    EXPECT_EQ(RowText(dialog.m_grid, 0), L"管径|最小流速(m/s)|最大流速(m/s)");
    EXPECT_TRUE(dialog.m_grid.Row(0).fixed);
    EXPECT_EQ(RowsText(dialog.m_grid), L"20|0.3|0.8 25|0.35|1 ||");
    EXPECT_EQ(dialog.m_grid.Cell(1, 0).background, COLORREF(15133164));
    EXPECT_FALSE(dialog.m_grid.Cell(3, 0).background);
    EXPECT_TRUE(dialog.m_grid.CanEdit(3, 0));
    EXPECT_FALSE(dialog.m_grid.CanEdit(3, 1));
    EXPECT_FALSE(dialog.m_grid.CanEdit(3, 2));
    EXPECT_FALSE(dialog.m_grid.CanEdit(0, 0));
  });
}

TEST_F(FlowVelocityDlg, SortsANewSizeIn) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 3, 0, L" 15 "));
    EXPECT_EQ(RowsText(dialog.m_grid), L"15|0|0 20|0.3|0.8 25|0.35|1 ||");
    EXPECT_TRUE(Edit(dialog.m_grid, 4, 0, L"  ")) << "ignored";
  });
  EXPECT_EQ(Names(), L"15 20 25");
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(FlowVelocityDlg, RefusesASizeThatIsNoNumber) {
  In([&](Dlg& dialog) {
    for (const wchar_t* text : {L"DN25", L"25mm", L"0", L"-1"})
      for (const int row : {1, 3}) {
        EXPECT_TRUE(Edit(dialog.m_grid, row, 0, text));
        ASSERT_EQ(frontEnd.boxes.size(), 1u);
        EXPECT_EQ(frontEnd.boxes[0].icon, UiMessageBox::Icon::information);
        EXPECT_EQ(frontEnd.takeBox(), L"输入字符串不满足要求，输入值必须为整型数据！");
      }
    EXPECT_EQ(RowsText(dialog.m_grid), L"20|0.3|0.8 25|0.35|1 ||");
  });
  EXPECT_EQ(Names(), L"20 25");
}

TEST_F(FlowVelocityDlg, RefusesASizeThatIsInAlready) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 3, 0, L"25"));
    EXPECT_EQ(frontEnd.takeBox(), L"当前管道已经[25]存在，请重新输入。");
    EXPECT_EQ(RowsText(dialog.m_grid), L"20|0.3|0.8 25|0.35|1 ||");
    EXPECT_EQ(dialog.FocusControl(), &dialog.m_grid);
    EXPECT_EQ(dialog.m_grid.GetFocusRow(), 3);
    EXPECT_TRUE(Edit(dialog.m_grid, 3, 0, L"25.0")) << "names are compared as texts";
  });
  EXPECT_EQ(Names(), L"20 25 25.0");
}

TEST_F(FlowVelocityDlg, LeavesARenamedSizeWhereItStandsUntilTheNextAddition) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 0, L"32"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"32|0.3|0.8 25|0.35|1 ||");
    EXPECT_TRUE(Edit(dialog.m_grid, 2, 0, L"32")) << "no test for duplicates";
    EXPECT_EQ(Names(), L"32 32");
    EXPECT_TRUE(Edit(dialog.m_grid, 2, 0, L"25"));
    EXPECT_TRUE(Edit(dialog.m_grid, 3, 0, L"15"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"15|0|0 25|0.35|1 32|0.3|0.8 ||");
  });
}

TEST_F(FlowVelocityDlg, AsksBeforeASizeIsDeleted) {
  In([&](Dlg& dialog) {
    frontEnd.answers = {IDCANCEL, IDOK};
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 0, L" "));
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
    EXPECT_EQ(frontEnd.takeBox(), L"当前字符串为空！删除不可恢复，确定要删除【20】吗?");
    EXPECT_EQ(RowsText(dialog.m_grid), L"20|0.3|0.8 25|0.35|1 ||");
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 0, L""));
    EXPECT_EQ(RowsText(dialog.m_grid), L"25|0.35|1 ||");
  });
  EXPECT_EQ(Names(), L"25");
}

TEST_F(FlowVelocityDlg, StoresVelocitiesAsTheyBegin) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 1, L"1.5 m/s"));
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 2, L"slow"));
    EXPECT_TRUE(frontEnd.boxes.empty());
    EXPECT_TRUE(Edit(dialog.m_grid, 2, 2, L" "));
    EXPECT_EQ(frontEnd.takeBox(), L"不能为空字符串，请输入数值。");
    EXPECT_EQ(dialog.m_grid.GetItemText(2, 2), L"");
    EXPECT_EQ(dialog.m_grid.GetFocusColumn(), 2);
  });
  EXPECT_EQ(table.m_arrLimits[0]->m_velocity.dbMin, 1.5);
  EXPECT_EQ(table.m_arrLimits[0]->m_velocity.dbMax, 0);
  EXPECT_EQ(table.m_arrLimits[1]->m_velocity.dbMax, 1);
}

TEST_F(FlowVelocityDlg, DoesNotTouchTheFrictionRange) {
  table.m_arrLimits[0]->m_friction = SZPRange(20, 120);
  In([](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_grid, 1, 1, L"0.5")); });
  Reload();
  EXPECT_EQ(table.m_arrLimits[0]->m_friction.dbMax, 120);
  EXPECT_EQ(table.m_arrLimits[0]->m_velocity.dbMin, 0.5);
}

TEST_F(FlowVelocityDlg, SavesHoweverItIsLeft) {
  EXPECT_EQ(In([](Dlg& dialog) {
              EXPECT_TRUE(Edit(dialog.m_grid, 3, 0, L"32"));
              EXPECT_TRUE(dialog.m_ok.UserClick());
            }),
            IDOK);
  Reload();
  EXPECT_EQ(Names(), L"20 25 32");
  EXPECT_EQ(In([](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_grid, 4, 0, L"40")); }), IDCANCEL);
  Reload();
  EXPECT_EQ(Names(), L"20 25 32 40");
}

TEST_F(FlowVelocityDlg, LeavesTheFileAsItIsWhenEveryRowIsGone) {
  In([](Dlg&) {});
  const std::string before = install.Read(kFile);
  frontEnd.answers = {IDOK, IDOK};
  In([](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 0, L""));
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 0, L""));
    EXPECT_EQ(RowsText(dialog.m_grid), L"||");
  });
  EXPECT_EQ(Names(), L"");
  EXPECT_EQ(install.Read(kFile), before);
  Reload();
  EXPECT_EQ(Names(), L"20 25");
}

TEST_F(FlowVelocityDlg, AsksNothingWhileTheWindowCloses) {
  struct {
    int row, column;
    const wchar_t* text;
  } const edits[] = {{1, 0, L""}, {1, 0, L"x"}, {1, 1, L""}, {3, 0, L"x"}, {3, 0, L"20"}, {3, 0, L""}};
  for (const auto& edit : edits)
    In([&](Dlg& dialog) {
      EXPECT_TRUE(dialog.m_grid.UserBeginEdit(edit.row, edit.column));
      EXPECT_TRUE(dialog.m_grid.UserTypeEdit(edit.text));
      dialog.UserClose();
    });
  EXPECT_TRUE(frontEnd.boxes.empty());
  Reload();
  EXPECT_EQ(Names(), L"20 25");
}

TEST_F(FlowVelocityDlg, IsShownByItsFunction) {
  frontEnd.runs = {[](CDialog& dialog) { EXPECT_TRUE(dialog.UserEnter()); }};
  EXPECT_EQ(ZP::ShowFVMngDlg(nullptr), IDOK);
}

} // namespace
