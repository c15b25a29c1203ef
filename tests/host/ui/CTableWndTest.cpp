#include "host/afx/CInvalidArgException.h"
#include "host/ui/CEditListCtrl.h"
#include "host/ui/CGridCtrl.h"
#include "host/ui/CReportCtrl.h"
#include "tests/host/ui/OpenForm.h"

namespace {

class Tables : public OpenForm {
 protected:
  Tables() {
    grid.SetHeading({{L"甲", 50}, {L"乙", 60}, {L"", 0}});
    for (const wchar_t* text : {L"一", L"二", L"三"}) grid.AddRow({text});
    grid.CellClicked.Connect([this](int row, int column) { clicked.emplace_back(row, column); });
  }
  using Rows = std::set<int>;
  CGridCtrl grid{form, L"表"};
  std::vector<std::pair<int, int>> clicked;
};

TEST_F(Tables, HaveTheirHeadingAsAFixedRow) {
  EXPECT_EQ(grid.GetFixedRowCount(), 1);
  EXPECT_EQ(grid.GetItemText(0, 1), L"乙");
  EXPECT_FALSE(grid.HasColumnTitles());
  EXPECT_FALSE(grid.UserClick(0, 0));
  grid.SetCurSel(0);
  EXPECT_EQ(grid.GetFocusRow(), -1);
}

TEST_F(Tables, TakeTextsThatAreTooFewOrTooMany) {
  const int row = grid.InsertRow(1, {L"a", L"b", L"c", L"d"}, this);
  EXPECT_EQ(grid.GetItemText(row, 2), L"c");
  EXPECT_EQ(grid.GetRowData(row), this);
  EXPECT_EQ(grid.GetItemText(2, 1), L"");
  EXPECT_EQ(grid.AddColumn(L"新", 10), 3);
  EXPECT_EQ(grid.GetItemText(row, 3), L"");
  EXPECT_TRUE(grid.HasColumnTitles());
}

TEST_F(Tables, RaiseForAnIndexThatThereIsNot) {
  EXPECT_THROW(grid.GetItemText(4, 0), CInvalidArgException);
  EXPECT_THROW(grid.GetItemText(0, 3), CInvalidArgException);
  EXPECT_THROW(grid.SetItemText(-1, 0, L""), CInvalidArgException);
  EXPECT_THROW(grid.InsertRow(5, {}), CInvalidArgException);
  EXPECT_THROW(grid.DeleteRow(4), CInvalidArgException);
  EXPECT_THROW(grid.DeleteAllRows(5), CInvalidArgException);
  EXPECT_THROW(grid.MergeCells(1, 1, 0, 0), CInvalidArgException);
  EXPECT_THROW(grid.SetColumnWidth(3, 1), CInvalidArgException);
  EXPECT_FALSE(grid.UserClick(4, 0));
  EXPECT_FALSE(grid.UserClick(1, 3));
  EXPECT_TRUE(clicked.empty());
}

TEST_F(Tables, MergeABlockIntoItsFirstCell) {
  grid.MergeCells(1, 0, 2, 1);
  EXPECT_EQ(grid.Cell(1, 0).spanRows, 2);
  EXPECT_EQ(grid.Cell(1, 0).spanColumns, 2);
  EXPECT_EQ(grid.Cell(2, 1).spanRows, 0);
  EXPECT_EQ(grid.Cell(3, 0).spanRows, 1);
}

TEST_F(Tables, MoveTheSelectionWithItsRow) {
  EXPECT_TRUE(grid.UserClick(2, 1));
  EXPECT_EQ(clicked, (std::vector<std::pair<int, int>>{{2, 1}}));
  grid.InsertRow(1, {L"新"});
  EXPECT_EQ(grid.GetFocusRow(), 3);
  EXPECT_EQ(grid.SelectedRows(), Rows{3});
  grid.DeleteRow(1);
  EXPECT_EQ(grid.SelectedRows(), Rows{2});
  grid.DeleteRow(2);
  EXPECT_EQ(grid.GetFocusRow(), -1);
  EXPECT_TRUE(grid.SelectedRows().empty());
  grid.SetCurSel(1);
  grid.DeleteAllRows(1);
  EXPECT_EQ(grid.GetFocusRow(), -1);
  EXPECT_EQ(grid.GetRowCount(), 1);
}

TEST_F(Tables, SelectSeveralRowsWhereTheyMay) {
  EXPECT_TRUE(grid.UserClick(1, 0));
  EXPECT_TRUE(grid.UserClick(3, 0, CTableWnd::Pick::extend));
  EXPECT_EQ(grid.SelectedRows(), Rows{3}) << "one only";
  grid.SetMultiSelect(true);
  EXPECT_TRUE(grid.UserClick(1, 0, CTableWnd::Pick::extend));
  EXPECT_EQ(grid.SelectedRows(), (Rows{1, 2, 3}));
  EXPECT_TRUE(grid.UserClick(2, 0, CTableWnd::Pick::toggle));
  EXPECT_EQ(grid.SelectedRows(), (Rows{1, 3}));
  EXPECT_TRUE(grid.UserClick(2, 0));
  EXPECT_EQ(grid.SelectedRows(), Rows{2});
}

TEST_F(Tables, OpenTheirMenuOnTheRowUnderTheMouse) {
  EXPECT_FALSE(grid.UserOpenMenu(1, 0)) << "there is none";
  int chosen = 0;
  grid.Menu.SetProvider([&] {
    return std::vector<UiMenuItem>{{1, L"删除", grid.GetFocusRow() > 1}, {2, L"新建"}};
  });
  grid.Menu.Chosen.Connect([&](int id) { chosen = id; });
  EXPECT_TRUE(grid.UserOpenMenu(1, 0));
  EXPECT_EQ(grid.SelectedRows(), Rows{1});
  EXPECT_FALSE(grid.Menu.UserChoose(1));
  EXPECT_FALSE(grid.Menu.UserChoose(9));
  EXPECT_TRUE(grid.UserOpenMenu(2, 0));
  EXPECT_TRUE(grid.Menu.UserChoose(1));
  EXPECT_EQ(chosen, 1);
  EXPECT_TRUE(grid.UserOpenMenu(-1, 0)) << "beside the rows";
  grid.SetMultiSelect(true);
  EXPECT_TRUE(grid.UserClick(1, 0));
  EXPECT_TRUE(grid.UserClick(3, 0, CTableWnd::Pick::toggle));
  EXPECT_TRUE(grid.UserOpenMenu(1, 0));
  EXPECT_EQ(grid.SelectedRows(), (Rows{1, 3})) << "a right click in the selection keeps it";
}

TEST_F(Tables, PressOnlyCellsThatAreForIt) {
  std::vector<std::pair<int, int>> pressed;
  grid.CellPressed.Connect([&](int row, int column) { pressed.emplace_back(row, column); });
  grid.Menu.SetProvider([] { return std::vector<UiMenuItem>{{1, L"删除"}}; });
  EXPECT_FALSE(grid.UserPress(1, 1)) << "a column like others";
  grid.SetColumnPressed(1, true);
  EXPECT_FALSE(grid.CanEdit(1, 1));
  EXPECT_TRUE(grid.UserClick(1, 1)) << "as by an arrow key";
  EXPECT_TRUE(grid.UserOpenMenu(2, 1));
  EXPECT_TRUE(pressed.empty());
  clicked.clear();
  EXPECT_TRUE(grid.UserPress(3, 1));
  EXPECT_EQ(clicked, (std::vector<std::pair<int, int>>{{3, 1}}));
  EXPECT_EQ(pressed, clicked);
  EXPECT_EQ(grid.SelectedRows(), Rows{3});
  EXPECT_FALSE(grid.UserPress(0, 1)) << "the heading";
  grid.SetCellReadOnly(3, 1, true);
  EXPECT_FALSE(grid.UserPress(3, 1));
  EXPECT_EQ(pressed.size(), 1u);
}

TEST_F(Tables, FinishTheOpenEditBeforeACellIsPressed) {
  grid.SetColumnPressed(1, true);
  grid.EditEnded.Connect([](UiEditEnd& end) { end.reopen = end.text == L"bad"; });
  int pressed = 0;
  grid.CellPressed.Connect([&](int, int) { ++pressed; });
  EXPECT_TRUE(grid.UserBeginEdit(1, 0));
  EXPECT_TRUE(grid.UserTypeEdit(L"bad"));
  EXPECT_FALSE(grid.UserPress(2, 1));
  EXPECT_EQ(pressed, 0);
  EXPECT_TRUE(grid.UserTypeEdit(L"good"));
  EXPECT_TRUE(grid.UserPress(2, 1));
  EXPECT_EQ(grid.GetItemText(1, 0), L"good");
  EXPECT_EQ(pressed, 1);
}

TEST_F(Tables, TellTheirChangesOnceWhileTheyAreQuiet) {
  Told told(grid);
  grid.SetItemText(1, 0, L"x");
  EXPECT_EQ(told.count(), 1u);
  {
    const UiQuietly quietly(grid);
    const UiQuietly again(grid);
    for (int i = 0; i < 10; ++i) grid.AddRow({L"x"});
    EXPECT_EQ(told.count(), 0u);
  }
  EXPECT_EQ(told.count(), 1u);
}

TEST_F(Tables, SelectARowBeforeACellOfItIsEdited) {
  EXPECT_TRUE(grid.UserClick(1, 0));
  clicked.clear();
  EXPECT_TRUE(grid.UserBeginEdit(3, 1));
  EXPECT_EQ(clicked, (std::vector<std::pair<int, int>>{{3, 1}}));
  EXPECT_EQ(grid.GetFocusRow(), 3);
}

TEST_F(Tables, OfReportsGiveTheChosenCell) {
  CReportCtrl report(form, L"修正系数");
  report.AddColumn(L"", 160);
  report.AddColumn(L"", 80);
  report.AddRow({L"头", L"头"});
  report.SetRowFixed(0, true);
  report.SetRowHeight(0, 55);
  report.AddRow({L"β1", L"0.95"});
  CString text = L"?";
  EXPECT_EQ(report.GetSelData(text), 0);
  EXPECT_EQ(text, L"");
  EXPECT_FALSE(report.UserBeginEdit(1, 1));
  EXPECT_TRUE(report.UserClick(1, 1));
  EXPECT_EQ(report.GetSelData(text), 1);
  EXPECT_EQ(text, L"0.95");
  EXPECT_EQ(report.GetTotalWidth(), 240);
  EXPECT_EQ(report.GetTotalHeight(), 77);
}

TEST_F(Tables, OfListsFindTheirData) {
  CEditListCtrl list(form, L"列表");
  list.AddColumn(L"名称", 80);
  int one = 0, two = 0;
  list.AddRow({L"一"}, &one);
  list.AddRow({L"二"}, &two);
  EXPECT_EQ(list.FindData(&two), 1);
  EXPECT_EQ(list.FindData(this), -1);
  EXPECT_EQ(list.SelectedData(), nullptr);
  list.SetCurSel(1);
  EXPECT_EQ(list.SelectedData(), &two);
}

TEST_F(Tables, KeepTitlesThatAreNotShown) {
  EXPECT_FALSE(grid.ShowsColumnTitles()) << "it has none";
  grid.SetColumnTitle(0, L"图层");
  EXPECT_TRUE(grid.ShowsColumnTitles());
  grid.ShowColumnTitles(false);
  EXPECT_FALSE(grid.ShowsColumnTitles());
  EXPECT_TRUE(grid.HasColumnTitles());
}

TEST_F(Tables, TellOfChangesOfTheirLook) {
  Told told(grid);
  grid.ShowGridLines(false);
  EXPECT_FALSE(grid.HasGridLines());
  grid.ShowColumnTitles(false);
  grid.SetColumnKeepsWidth(1, true);
  EXPECT_TRUE(grid.Column(1).keepsWidth);
  EXPECT_EQ(told.count(), 3u);
}

TEST_F(Tables, NameTheirImages) {
  grid.SetImages({L"a.png", L"<svg/>"});
  grid.SetImageNames({L"开"});
  EXPECT_EQ(grid.ImageName(0), L"开");
  EXPECT_EQ(grid.ImageName(1), L"");
  EXPECT_EQ(grid.ImageName(-1), L"");
}

} // namespace
