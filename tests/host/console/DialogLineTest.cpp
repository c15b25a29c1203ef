#include "host/console/DialogLine.h"

#include "tests/host/console/EveryControlDlg.h"
#include "tests/support/UiFrontEndScript.h"

#include <gtest/gtest.h>

namespace {

class DialogLine : public testing::Test {
 protected:
  DialogLine() { dialog.Create(); }
  // Empty when the line was obeyed, otherwise "reason / expected".
  std::string Obey(const CString& line) {
    const auto outcome = console::ObeyDialogLine(dialog, line, [&](const CString& text) { printed += text; });
    return outcome ? "" : (outcome.reason + L" / " + outcome.expected).ToUtf8();
  }
  std::string Show(const wchar_t* control) {
    printed.Empty();
    EXPECT_EQ("", Obey(CString(L"show ") + control));
    return printed.ToUtf8();
  }
  UiFrontEndScript frontEnd;
  EveryControlDlg dialog;
  CString printed;
};

TEST_F(DialogLine, ClicksButtonsByCaptionOrToolTip) {
  EXPECT_EQ("", Obey(L"click 应用到当前图纸..."));
  EXPECT_EQ("", Obey(L"CLICK  应用到当前图纸"));
  EXPECT_EQ("", Obey(L"click \"应用到当前图纸...\""));
  EXPECT_EQ(dialog.m_presses, 3);
  EXPECT_EQ("", Obey(L"click 配件/新建"));
  EXPECT_EQ(dialog.m_presses, 13);
}

TEST_F(DialogLine, NamesTheButtonsThatAnAmbiguousOneMayMean) {
  EXPECT_EQ("“新建”不止一个。 / 列表/新建、配件/新建", Obey(L"click 新建"));
}

TEST_F(DialogLine, NamesWhatItExpectedInsteadOfAnUnknownName) {
  const auto refusal = Obey(L"check 不存在 on");
  EXPECT_EQ("对话框中没有“不存在”。 / 显示全部、图层树、参数、线宽(mm)、颜色、单位", refusal);
  EXPECT_EQ("“停用”现在不可用。 / 一个可用的控件", Obey(L"click 停用"));
  EXPECT_NE(std::string::npos, Obey(L"click 隐藏的").find("没有"));
  EXPECT_NE(std::string::npos, Obey(L"click 系数").find("“系数”不能这样操作。"));
  EXPECT_NE(std::string::npos, Obey(L"press 确定").find("没有“press”这种操作。 / show、click、set"));
  EXPECT_NE(std::string::npos, Obey(L"answer 确定").find("没有等待回答的消息框"));
}

TEST_F(DialogLine, SetsFields) {
  EXPECT_EQ("", Obey(L"set 方案 名称： = a = b"));
  EXPECT_EQ(dialog.m_edit.GetText(), L"a = b");
  EXPECT_EQ("", Obey(L"set 方案 名称 ="));
  EXPECT_EQ(dialog.m_edit.GetText(), L"");
  EXPECT_EQ("", Obey(L"set 系数 = 1.5"));
  EXPECT_EQ(dialog.m_number.GetValue(), 1.5);
  EXPECT_EQ("“系数”只接受数字。 / 一个数，如 12.5", Obey(L"set 系数 = 十"));
  EXPECT_EQ("", Obey(L"set 方案 = 乙 丙"));
  EXPECT_EQ(dialog.m_combo.GetCurSel(), 1);
  EXPECT_NE("", Obey(L"set 方案 = 丁"));
  EXPECT_EQ("", Obey(L"set 温度 = 47.5"));
  EXPECT_EQ(dialog.m_freeCombo.GetText(), L"47.5");
  EXPECT_EQ("", Obey(L"set 列表 = 甲"));
  EXPECT_EQ(dialog.m_list.SelectedText(), L"甲");
  EXPECT_EQ("缺少“= 文字”。 / = 后面写新的文字", Obey(L"set 系数 2"));
  EXPECT_NE("", Obey(L"set 系数 8 = 2"));
}

TEST_F(DialogLine, StepsASpinField) {
  EXPECT_EQ("", Obey(L"step 系数 3"));
  EXPECT_EQ(dialog.m_number.GetText(), L"0.3");
  EXPECT_EQ("", Obey(L"step 系数 -9"));
  EXPECT_EQ(dialog.m_number.GetText(), L"0");
  EXPECT_NE("", Obey(L"step 系数 上"));
}

TEST_F(DialogLine, SelectsByNumberOrText) {
  EXPECT_EQ("", Obey(L"select 列表 2"));
  EXPECT_EQ(dialog.m_list.GetCurSel(), 1);
  EXPECT_EQ("", Obey(L"select 列表 3"));
  EXPECT_EQ(dialog.m_list.GetCurSel(), 2) << "the number comes before the text";
  EXPECT_EQ("", Obey(L"select 列表 乙 丙"));
  EXPECT_EQ(dialog.m_list.GetCurSel(), 1);
  EXPECT_EQ("没有这一行：“4”。 / 1 到 3 的行号，或行中文字", Obey(L"select 列表 4"));
  EXPECT_EQ("", Obey(L"select 字体 使用文字样式"));
  EXPECT_EQ(dialog.m_radios.GetCurSel(), 1);
  EXPECT_EQ("", Obey(L"click 使用当前字体"));
  EXPECT_EQ(dialog.m_radios.GetCurSel(), 0);
  EXPECT_EQ("", Obey(L"select 图层树 全部图层/墙 体"));
  EXPECT_EQ(dialog.m_tree.GetSelectedItem()->text, L"墙 体");
  EXPECT_EQ("", Obey(L"select 图层树 2"));
  EXPECT_EQ(dialog.m_tree.GetSelectedItem()->text, L"0");
  EXPECT_EQ("", Obey(L"select 方案 3"));
  EXPECT_EQ(dialog.m_combo.GetText(), L"3");
  EXPECT_EQ("", Obey(L"select 参数 单位"));
  EXPECT_EQ(dialog.m_properties.GetCurSel(), 2);
}

TEST_F(DialogLine, SelectsRowsAndCells) {
  EXPECT_EQ("", Obey(L"select 配件 三通 90"));
  EXPECT_EQ(dialog.m_cell, L"2,0");
  EXPECT_EQ("", Obey(L"select 配件 1 数 量"));
  EXPECT_EQ(dialog.m_cell, L"1,2");
  EXPECT_EQ("", Obey(L"click 配件 2 2"));
  EXPECT_EQ(dialog.m_cell, L"2,2") << "the hidden column isn't counted";
  EXPECT_EQ("", Obey(L"select 配件 1,2"));
  EXPECT_EQ(dialog.m_grid.SelectedRows(), (std::set<int>{1, 2}));
  EXPECT_EQ("", Obey(L"select 配件 all"));
  EXPECT_EQ(dialog.m_grid.SelectedRows(), (std::set<int>{1, 2}));
  EXPECT_NE("", Obey(L"select 配件 3"));
  EXPECT_NE("", Obey(L"click 配件 1 没有"));
  EXPECT_EQ("", Obey(L"dblclick 配件 1"));
  EXPECT_EQ(dialog.m_cell, L"1,0!");
}

TEST_F(DialogLine, PressesCellsThatAreForIt) {
  dialog.m_grid.SetColumnPressed(2, true);
  CString pressed;
  dialog.m_grid.CellPressed.Connect(
      [&](int row, int column) { pressed.AppendFormat(L"%d,%d ", row, column); });
  EXPECT_EQ("", Obey(L"select 配件 1"));
  EXPECT_EQ("", Obey(L"click 配件 2 1"));
  EXPECT_EQ("", Obey(L"click 配件 2 数 量"));
  EXPECT_EQ(pressed, L"2,2 ");
  EXPECT_NE("", Obey(L"edit 配件 2 数 量 = 5"));
}

TEST_F(DialogLine, EditsCells) {
  EXPECT_EQ("", Obey(L"edit 配件 弯头 数 量 = 5 个"));
  EXPECT_EQ(dialog.m_grid.GetItemText(1, 2), L"5 个");
  EXPECT_EQ("", Obey(L"edit 配件 三通 90 名称 = 四通"));
  EXPECT_EQ(dialog.m_grid.GetItemText(2, 0), L"四通");
  EXPECT_NE("", Obey(L"edit 配件 2 名称 = 阀门")) << "not among the choices";
  EXPECT_FALSE(dialog.m_grid.CurrentEdit());
  EXPECT_EQ("", Obey(L"edit 行表 \"行=1\" 常用 = x=y"));
  EXPECT_EQ(dialog.m_edits.GetItemText(0, 0), L"x=y");
  EXPECT_EQ("没有这一列：“1 3”。 / 1 到 2 的行号或行中文字，和列名 名称、数 量", Obey(L"edit 配件 1 3 = x"));
  EXPECT_NE(std::string::npos, Obey(L"edit 配件 9 1 = x").find("没有这一行"));
}

TEST_F(DialogLine, GoesOnWithAnEditThatWasRefused) {
  EXPECT_EQ("", Obey(L"edit 配件 1 1 = bad"));
  ASSERT_TRUE(dialog.m_grid.CurrentEdit());
  EXPECT_NE(std::string::npos, Show(L"配件").find("正在编辑第 1 行“名称”：bad"));
  EXPECT_NE(std::string::npos, Obey(L"click 应用到当前图纸").find("还没有被接受"));
  EXPECT_EQ("", Obey(L"edit 配件 1 1 = 好"));
  EXPECT_EQ(dialog.m_grid.GetItemText(1, 0), L"好");
}

TEST_F(DialogLine, ChecksBoxesTicksAndProperties) {
  EXPECT_EQ("", Obey(L"check 显示全部 on"));
  EXPECT_TRUE(dialog.m_box.GetCheck());
  EXPECT_EQ("", Obey(L"click 显示全部"));
  EXPECT_FALSE(dialog.m_box.GetCheck());
  EXPECT_EQ("", Obey(L"check 图层树 全部图层 on"));
  EXPECT_TRUE(dialog.m_tree.GetRootItem()->children[1]->checked);
  EXPECT_EQ("", Obey(L"check 图层树 墙 体 off"));
  EXPECT_FALSE(dialog.m_tree.GetRootItem()->children[1]->checked);
  EXPECT_EQ("", Obey(L"check 线宽(mm) off"));
  EXPECT_FALSE(dialog.m_properties.Item(0).ticked);
  EXPECT_NE("", Obey(L"check 单位 off"));
  EXPECT_NE("", Obey(L"check 显示全部"));
}

TEST_F(DialogLine, SetsAndPressesProperties) {
  EXPECT_EQ("", Obey(L"set 线宽(mm) = 0.5"));
  EXPECT_EQ("", Obey(L"set 参数/单位 = m"));
  EXPECT_EQ("", Obey(L"edit 参数 1 = 0.7"));
  EXPECT_EQ(dialog.m_properties.GetText(0), L"0.7");
  EXPECT_EQ(dialog.m_properties.GetText(2), L"m");
  EXPECT_NE("", Obey(L"set 单位 = 套"));
  EXPECT_NE("", Obey(L"set 颜色 = 3"));
  EXPECT_EQ("", Obey(L"click 颜色"));
  EXPECT_EQ(dialog.m_presses, 1);
}

TEST_F(DialogLine, ChoosesFromMenus) {
  EXPECT_EQ("", Obey(L"menu 图层树 墙 体 新建分类"));
  EXPECT_EQ(dialog.m_menu, 1);
  EXPECT_EQ(dialog.m_tree.GetSelectedItem()->text, L"墙 体");
  EXPECT_EQ("", Obey(L"menu 配件 复制"));
  EXPECT_EQ(dialog.m_menu, 7);
  EXPECT_EQ("", Obey(L"menu 配件 2 复制"));
  EXPECT_NE(std::string::npos, Obey(L"menu 图层树 1 删除").find("现在不可用"));
  EXPECT_EQ("菜单中没有“粘贴”。 / 复制", Obey(L"menu 配件 1 粘贴"));
  EXPECT_NE("", Obey(L"menu 行表 1 复制"));
}

TEST_F(DialogLine, ReachesThePageThatIsShowing) {
  EXPECT_EQ("", Obey(L"set 备注 = x"));
  EXPECT_NE("", Obey(L"check 启用 on"));
  EXPECT_EQ("", Obey(L"select 页 其他"));
  EXPECT_EQ("", Obey(L"check 启用 on"));
  EXPECT_NE("", Obey(L"set 备注 = y"));
  EXPECT_EQ("", Obey(L"click 页/常用"));
  EXPECT_EQ(dialog.m_first.m_note.GetText(), L"x");
}

TEST_F(DialogLine, ShowsEverythingOnce) {
  EXPECT_EQ("", Obey(L"show"));
  const std::string text = printed.ToUtf8();
  for (const char* line : {"== 控件 ==\n",
                           "-- 全部 --\n",
                           "\n说明文字\n",
                           "\n示意图：无图片\n",
                           "\n[应用到当前图纸... *]\n",
                           "\n[停用（不可用）]\n",
                           "\n[ ] 显示全部\n",
                           "\n  ( ) 使用当前字体\n",
                           "\n方案 名称：\n",
                           "\n系数：\n",
                           "\n温度：（甲、乙 丙、3）\n",
                           "\n    2  乙 丙\n",
                           "\n[列表/新建]\n",
                           "\n    3    [ ] 墙 体\n",
                           "\n       名称 | 数 量\n",
                           "\n    2  三通 90 | 2\n",
                           "\n    [x] 线宽(mm)：0.25\n",
                           "\n  (o) 常用\n",
                           "\n备注：\n",
                           "\n图块（预览）\n"})
    EXPECT_EQ(text.find(line), text.rfind(line)) << line;
  for (const char* line :
       {"\n[停用（不可用）]\n", "\n    [x] 线宽(mm)：0.25\n", "\n    2  三通 90 | 2\n", "\n  ( ) 其他\n"})
    EXPECT_NE(std::string::npos, text.find(line)) << text;
  EXPECT_EQ(std::string::npos, text.find("隐藏的"));
  EXPECT_EQ(std::string::npos, text.find("启用"));
}

TEST_F(DialogLine, CutsLongTablesUnlessTheyAreAskedFor) {
  for (int i = 0; i < 60; ++i) dialog.m_list.AddString(L"很多");
  EXPECT_EQ("", Obey(L"show"));
  EXPECT_NE(std::string::npos, printed.ToUtf8().find("…… 共 63 行"));
  EXPECT_NE(std::string::npos, Show(L"列表").find("   63  很多"));
}

TEST_F(DialogLine, ClosesWithTheCloseBox) {
  EXPECT_NE("", Obey(L"close now"));
  EXPECT_EQ("", Obey(L"close"));
  EXPECT_TRUE(dialog.HasEnded());
}

TEST_F(DialogLine, RefusesNonsense) {
  for (const wchar_t* line : {L"set",
                              L"set =",
                              L"set = 1",
                              L"edit",
                              L"edit 配件",
                              L"edit 配件 =",
                              L"edit 配件 1 =",
                              L"select",
                              L"select 配件",
                              L"check",
                              L"check on",
                              L"menu",
                              L"menu 配件",
                              L"dblclick",
                              L"click",
                              L"step",
                              L"step 系数",
                              L"show 没有",
                              L"\"",
                              L"click \"",
                              L"edit 配件 \"1 1 = x",
                              L"=",
                              L"set \"系数 = 1"})
    EXPECT_NE("", Obey(line)) << CString(line).ToUtf8();
  EXPECT_EQ(dialog.m_number.GetText(), L"");
}

TEST_F(DialogLine, NamesColumnsAndImagesOfTablesThatShowNoTitles) {
  dialog.m_edits.SetColumnTitle(0, L"图层");
  dialog.m_edits.ShowColumnTitles(false);
  dialog.m_edits.SetImages({L"on.svg", L"off.svg"});
  dialog.m_edits.SetImageNames({L"开"});
  const int state = dialog.m_edits.AddColumn(L"开关", 20);
  dialog.m_edits.DeleteAllRows();
  for (const int image : {0, 1}) dialog.m_edits.SetCellImage(dialog.m_edits.AddRow({L"甲"}), state, image);
  const std::string shown = Show(L"行表");
  EXPECT_NE(std::string::npos, shown.find("图层 | ")) << shown;
  EXPECT_NE(std::string::npos, shown.find(" | 开\n")) << shown;
  EXPECT_NE(std::string::npos, shown.find(" | 图标1\n"))
      << "one without a name goes by its number: " << shown;
  EXPECT_EQ("", Obey(L"select 行表 2 开关"));
  dialog.m_edits.SetCellColours(1, dialog.m_edits.AddColumn(L"颜色", 20), RGB(255, 0, 18));
  EXPECT_NE(std::string::npos, Show(L"行表").find(" | #FF0012\n"));
  EXPECT_EQ(dialog.m_edits.GetFocusColumn(), state);
}

} // namespace
