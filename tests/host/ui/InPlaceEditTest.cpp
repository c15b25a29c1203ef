#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CEditListCtrl.h"
#include "host/ui/CGridCtrl.h"
#include "tests/support/UiFrontEndScript.h"

#include <gtest/gtest.h>

namespace {

// Refuses "bad" and notes every end of an edit.
class NamesDlg : public CDialog {
 public:
  NamesDlg() : CDialog(L"名称") {
    m_list.AddColumn(L"名称", 100);
    m_list.AddColumn(L"数量", 60);
    m_list.AddColumn(L"", 0);
    m_list.AddRow({L"甲", L"1"});
    m_list.AddRow({L"乙", L"2"});
    m_list.EditEnded.Connect([this](UiEditEnd& end) {
      m_ends.push_back(end);
      if (m_rule) m_rule(end);
      if (end.text == L"bad") end.reopen = true;
    });
    m_button.Clicked.Connect([this] { ++m_clicks; });
  }
  CEditListCtrl m_list{*this, L"列表"};
  CButton m_button{*this, L"按钮"};
  std::vector<UiEditEnd> m_ends;
  std::function<void(UiEditEnd&)> m_rule;
  int m_clicks = 0;
};

class InPlaceEdit : public testing::Test {
 protected:
  // Runs it in a dialog that is open.
  void In(const std::function<void(NamesDlg&)>& test) {
    NamesDlg dialog;
    frontEnd.runs.push_back([&](CDialog&) { test(dialog); });
    result = dialog.DoModal();
    ends = dialog.m_ends;
  }
  static void Type(NamesDlg& dialog, int row, int column, const wchar_t* text) {
    EXPECT_TRUE(dialog.m_list.UserBeginEdit(row, column));
    EXPECT_TRUE(dialog.m_list.UserTypeEdit(text));
  }
  UiFrontEndScript frontEnd;
  std::vector<UiEditEnd> ends;
  int result = 0;
};

TEST_F(InPlaceEdit, GivesTheCellItsText) {
  In([](NamesDlg& dialog) {
    Type(dialog, 1, 0, L"丙");
    EXPECT_EQ(dialog.m_list.GetItemText(1, 0), L"乙") << "only when it ends";
    EXPECT_TRUE(dialog.m_list.UserEndEdit());
    EXPECT_EQ(dialog.m_list.GetItemText(1, 0), L"丙");
    EXPECT_FALSE(dialog.m_list.CurrentEdit());
    EXPECT_EQ(dialog.m_list.GetCurSel(), 1);
  });
  ASSERT_EQ(ends.size(), 1u);
  EXPECT_EQ(ends[0].oldText, L"乙");
  EXPECT_FALSE(ends[0].cancelled || ends[0].closing);
}

TEST_F(InPlaceEdit, ThatIsRefusedStandsOpenAgainWithWhatWasTyped) {
  In([](NamesDlg& dialog) {
    Type(dialog, 0, 0, L"bad");
    EXPECT_TRUE(dialog.m_list.UserEndEdit());
    ASSERT_TRUE(dialog.m_list.CurrentEdit());
    EXPECT_EQ(dialog.m_list.CurrentEdit()->text, L"bad");
    EXPECT_EQ(dialog.m_list.GetItemText(0, 0), L"甲");
    EXPECT_TRUE(dialog.m_list.UserCancelEdit());
    EXPECT_FALSE(dialog.m_list.CurrentEdit());
    EXPECT_EQ(dialog.m_list.GetItemText(0, 0), L"甲");
  });
  ASSERT_EQ(ends.size(), 2u);
  EXPECT_TRUE(ends[1].cancelled);
  EXPECT_EQ(ends[1].text, L"甲");
}

TEST_F(InPlaceEdit, IsFinishedBeforeAnythingElseIsDone) {
  In([](NamesDlg& dialog) {
    Type(dialog, 0, 0, L"丁");
    EXPECT_TRUE(dialog.m_button.UserClick());
    EXPECT_EQ(dialog.m_list.GetItemText(0, 0), L"丁");
    EXPECT_EQ(dialog.m_clicks, 1);
    Type(dialog, 0, 1, L"7");
    EXPECT_TRUE(dialog.m_list.UserClick(1, 0));
    EXPECT_EQ(dialog.m_list.GetItemText(0, 1), L"7");
    Type(dialog, 0, 1, L"8");
    EXPECT_TRUE(dialog.m_list.UserBeginEdit(1, 1));
    EXPECT_EQ(dialog.m_list.GetItemText(0, 1), L"8");
    EXPECT_EQ(dialog.m_list.CurrentEdit()->row, 1);
  });
}

TEST_F(InPlaceEdit, ThatIsRefusedKeepsEverythingElseFromBeingDone) {
  In([](NamesDlg& dialog) {
    Type(dialog, 0, 0, L"bad");
    EXPECT_FALSE(dialog.m_button.UserClick());
    EXPECT_EQ(dialog.m_clicks, 0);
    EXPECT_FALSE(dialog.m_list.UserClick(1, 0));
    EXPECT_FALSE(dialog.m_list.UserBeginEdit(1, 0));
    EXPECT_FALSE(dialog.m_list.UserOpenMenu(1, 0));
    ASSERT_TRUE(dialog.m_list.CurrentEdit());
    EXPECT_EQ(dialog.m_list.CurrentEdit()->row, 0);
  });
}

TEST_F(InPlaceEdit, EndsForGoodWhenTheWindowIsClosed) {
  In([](NamesDlg& dialog) {
    Type(dialog, 0, 0, L"bad");
    dialog.UserClose();
    EXPECT_TRUE(dialog.HasEnded());
    EXPECT_FALSE(dialog.m_list.CurrentEdit());
  });
  EXPECT_EQ(result, IDCANCEL);
  ASSERT_EQ(ends.size(), 1u);
  EXPECT_TRUE(ends[0].closing);
}

TEST_F(InPlaceEdit, IsGivenUpByEscapeBeforeTheDialogIs) {
  In([](NamesDlg& dialog) {
    Type(dialog, 0, 0, L"戊");
    dialog.UserEscape();
    EXPECT_FALSE(dialog.HasEnded());
    EXPECT_EQ(dialog.m_list.GetItemText(0, 0), L"甲");
    dialog.UserEscape();
    EXPECT_TRUE(dialog.HasEnded());
  });
}

TEST_F(InPlaceEdit, GoesWithItsRowWithoutAWord) {
  In([](NamesDlg& dialog) {
    Type(dialog, 0, 0, L"bad");
    dialog.m_list.DeleteRow(0);
    EXPECT_FALSE(dialog.m_list.CurrentEdit());
    EXPECT_TRUE(dialog.m_button.UserClick());
  });
  EXPECT_TRUE(ends.empty());
}

TEST_F(InPlaceEdit, MovesWithItsRow) {
  In([](NamesDlg& dialog) {
    Type(dialog, 1, 0, L"己");
    dialog.m_list.DeleteRow(0);
    EXPECT_EQ(dialog.m_list.CurrentEdit()->row, 0);
    dialog.m_list.InsertRow(0, {L"新"});
    EXPECT_EQ(dialog.m_list.CurrentEdit()->row, 1);
    EXPECT_TRUE(dialog.m_list.UserEndEdit());
    EXPECT_EQ(dialog.m_list.GetItemText(1, 0), L"己");
  });
}

TEST_F(InPlaceEdit, MayBeRefusedByARuleThatTookTheRowAway) {
  In([](NamesDlg& dialog) {
    dialog.m_rule = [&](UiEditEnd& end) {
      dialog.m_list.DeleteAllRows();
      end.reopen = true;
    };
    Type(dialog, 0, 0, L"庚");
    EXPECT_TRUE(dialog.m_list.UserEndEdit());
    EXPECT_FALSE(dialog.m_list.CurrentEdit());
  });
}

TEST_F(InPlaceEdit, IsNotOfferedWhereNothingMayBeChanged) {
  In([](NamesDlg& dialog) {
    auto& list = dialog.m_list;
    EXPECT_FALSE(list.UserBeginEdit(0, 2)) << "hidden";
    EXPECT_FALSE(list.UserBeginEdit(2, 0));
    EXPECT_FALSE(list.UserBeginEdit(0, -1));
    list.SetCellReadOnly(0, 0, true);
    EXPECT_FALSE(list.UserBeginEdit(0, 0));
    list.SetColumnReadOnly(1, true);
    EXPECT_FALSE(list.UserBeginEdit(1, 1));
    list.SetRowFixed(1, true);
    EXPECT_FALSE(list.UserBeginEdit(1, 0));
    EXPECT_FALSE(list.UserClick(1, 0));
    list.SetRowFixed(1, false);
    EXPECT_TRUE(list.UserBeginEdit(1, 0));
    EXPECT_TRUE(list.UserCancelEdit());
    list.EnableWindow(false);
    EXPECT_FALSE(list.UserBeginEdit(1, 0));
    list.EnableWindow(true);
    list.SetEditable(false);
    EXPECT_FALSE(list.UserBeginEdit(1, 0));
    EXPECT_FALSE(list.UserTypeEdit(L"x"));
    EXPECT_FALSE(list.UserEndEdit());
    EXPECT_FALSE(list.UserCancelEdit());
  });
}

TEST_F(InPlaceEdit, OfADropDownCellTakesAChoice) {
  In([](NamesDlg& dialog) {
    auto choices = std::make_shared<const std::vector<CString>>(std::vector<CString>{L"弯头", L"三通", L""});
    dialog.m_list.SetCellChoices(0, 0, choices);
    EXPECT_TRUE(dialog.m_list.UserChoose(0, 0, L"三通"));
    EXPECT_EQ(dialog.m_list.GetItemText(0, 0), L"三通");
    EXPECT_FALSE(dialog.m_list.UserChoose(0, 0, L"阀门"));
    EXPECT_EQ(dialog.m_list.GetItemText(0, 0), L"三通");
    EXPECT_FALSE(dialog.m_list.CurrentEdit());
    dialog.m_list.SetCellChoices(0, 0, choices, true);
    EXPECT_TRUE(dialog.m_list.UserChoose(0, 0, L"阀门"));
    EXPECT_EQ(dialog.m_list.GetItemText(0, 0), L"阀门");
  });
}

} // namespace
