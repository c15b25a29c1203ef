// Dialogs run by a whole console program, from its input to what it prints.
#include "host/commands/HostCommands.h"
#include "host/console/ConsoleProgram.h"
#include "host/db/AcDbLayerTable.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/EdSession.h"
#include "host/ed/acedCommand.h"
#include "host/ed/acedPrompts.h"
#include "host/ed/acedWindows.h"
#include "host/ed/acutPrintf.h"
#include "host/ui/CAcUiDockControlBar.h"
#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CEdit.h"
#include "host/ui/CFrameWnd.h"
#include "host/ui/UiFrontEnd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class NameDlg : public CDialog {
 public:
  explicit NameDlg(int depth) : CDialog(L"名称", acedGetAcadDwgView()), m_depth(depth) {
    m_ok.Clicked.Connect([this] { OnOK(); });
    m_more.Clicked.Connect([this] { acutPrintf(L"\n里层结果 %d\n", NameDlg(m_depth + 1).DoModal()); });
    m_pick.Clicked.Connect([this] {
      BeginEditorCommand();
      ads_point point;
      const int status = acedGetPoint(nullptr, L"取点:", point);
      CompleteEditorCommand();
      acutPrintf(L"\n取点结果 %d\n", status);
    });
    m_ask.Clicked.Connect([this] {
      acutPrintf(L"\n回答 %d\n", MessageBox(L"确定要删除吗?", L"青岚提示", MB_OKCANCEL | MB_DEFBUTTON2));
    });
    m_choose.Clicked.Connect([] {
      auto& frontEnd = *UiFrontEnd::Get();
      acutPrintf(L"\n颜色 %d", frontEnd.ChooseColour(7, true).value_or(-9));
      acutPrintf(L" 线型 %s", frontEnd.ChooseLinetype(L"ByLayer").value_or(L"-"));
      acutPrintf(L" 线宽 %d", frontEnd.ChooseLineWeight(-1).value_or(-9));
      acutPrintf(L" 文件 %s\n", frontEnd.ChooseFile({L"打开", {}, L"a.dxf", {}, false}).value_or(L"-"));
    });
    m_stay.Clicked.Connect([this] { m_stays = true; });
  }
  UiLayout Layout() override { return ui::Column({ui::Item(m_name), ui::Item(m_ok)}); }
  void OnCancel() override {
    if (!m_stays) CDialog::OnCancel();
  }

  CEdit m_name{*this, L"名称："};
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  CButton m_more{*this, L"里层..."};
  CButton m_pick{*this, L"取点"};
  CButton m_ask{*this, L"询问"};
  CButton m_choose{*this, L"选择"};
  CButton m_stay{*this, L"不关"};
  int m_depth;
  bool m_stays = false;
};

void ShowNameDlg() {
  acutPrintf(L"\n结果 %d\n", NameDlg(0).DoModal());
}

// Changes the drawing, then opens the dialog.
void ChangeAndShow() {
  acedCommandTexts({L"LAYER", L"N", L"新层", L""});
  ShowNameDlg();
}

void ShowByCommand() {
  acedCommandTexts({L"ND"});
}

class TestBar : public CAcUiDockControlBar {
 public:
  TestBar() {
    m_press.Clicked.Connect([] { acutPrintf(L"\n面板按下\n"); });
  }
  UiLayout Layout() override { return ui::Item(m_press); }
  CButton m_press{*this, L"按下"};
};
std::unique_ptr<TestBar> s_bar;

void ShowBar() {
  if (!s_bar) {
    s_bar = std::make_unique<TestBar>();
    s_bar->Create(acedGetAcadFrame(), L"当前图层");
  }
  static_cast<CFrameWnd*>(acedGetAcadFrame())->ShowControlBar(s_bar.get(), true, true);
}
void DropBar() {
  s_bar.reset();
}

class ConsoleDialogs : public testing::Test {
 protected:
  ConsoleDialogs() {
    commands::RegisterHostCommands();
    const std::pair<const wchar_t*, AcRxFunctionPtr> rows[] = {{L"ND", ShowNameDlg},
                                                               {L"CD", ChangeAndShow},
                                                               {L"NC", ShowByCommand},
                                                               {L"BARON", ShowBar},
                                                               {L"BAROFF", DropBar}};
    for (const auto& [name, function] : rows)
      acedRegCmds->addCommand(L"TEST", name, name, ACRX_CMD_MODAL, function);
  }
  ~ConsoleDialogs() override {
    acedRegCmds->removeGroup(L"TEST");
    s_bar.reset();
  }
  std::string Run(const std::string& input) {
    std::istringstream in(input);
    std::ostringstream out;
    status = console::RunConsole({}, in, out);
    return out.str();
  }
  int status = -1;
};

TEST_F(ConsoleDialogs, ReadLikeASession) {
  EXPECT_EQ("命令: ND\n对话框：名称\n名称: set 名称 = 甲\n名称: show\n== 名称 ==\n名称：甲\n[确定 *]\n名称: "
            "click 确定\n结果 1\n",
            Run("ND\nset 名称 = 甲\nshow\nclick 确定\n"));
  EXPECT_EQ(0, status);
}

TEST_F(ConsoleDialogs, AreClosedByTheEndOfTheInput) {
  EXPECT_THAT(Run("ND\nclick 里层"),
              HasSubstr("（输入结束，关闭“名称”）\n里层结果 2\n（输入结束，关闭“名称”）\n结果 2\n"));
  EXPECT_EQ(0, status);
  EXPECT_THAT(Run("ND\nclick 不关\nclose\n"), HasSubstr("结果 2")) << "also when they would rather not";
}

TEST_F(ConsoleDialogs, EndWithEscapeAndIgnoreEmptyLines) {
  EXPECT_THAT(Run("ND\n\n; 注释\n*cancel*\nID\n1,1\n"), HasSubstr("结果 2"));
  EXPECT_EQ(0, status);
}

TEST_F(ConsoleDialogs, NameALineThatCannotBeObeyedAndGoOn) {
  const auto output = Run("ND\nclick 没有\nclick 确定\n");
  EXPECT_THAT(output, HasSubstr("对话框中没有“没有”。\n** 第 2 行“click 没有”未执行。应为：确定、里层"));
  EXPECT_THAT(output, HasSubstr("结果 1"));
  EXPECT_EQ(1, status);
}

TEST_F(ConsoleDialogs, AnswerMessageBoxes) {
  EXPECT_THAT(Run("ND\nclick 询问\nanswer 确定\nclose\n"),
              HasSubstr("[青岚提示] 确定要删除吗?\n确定/取消 <取消>: answer 确定\n回答 1"));
  EXPECT_THAT(Run("ND\nclick 询问\nanswer ok\nclose\n"), HasSubstr("回答 1"));
  EXPECT_THAT(Run("ND\nclick 询问\nclose\n"), HasSubstr("（未回答，取默认按钮“取消”）\n回答 2"));
  EXPECT_EQ(0, status);
}

TEST_F(ConsoleDialogs, StepAsideForPrompts) {
  EXPECT_THAT(Run("ND\nclick 取点\n3,4\nclick 确定\n"),
              HasSubstr("取点: 3,4\n取点结果 5100\n名称: click 确定\n结果 1"));
}

TEST_F(ConsoleDialogs, DoNotGiveUpTheCommandWithAPickThatIsGivenUp) {
  const auto output = Run("CD\nclick 取点\n*cancel*\nclose\nLAYER\n?\n*\n\n");
  EXPECT_THAT(output, HasSubstr("取点结果 -5002"));
  EXPECT_THAT(output, HasSubstr("新层：")) << "the layer made before the dialog stays";
}

TEST_F(ConsoleDialogs, AreForTheUserWhenACommandOpensThemInsideAnother) {
  EXPECT_THAT(Run("NC\nclick 询问\nanswer 确定\nclick 确定\nID\n5,6\n"),
              ::testing::AllOf(HasSubstr("回答 1"), HasSubstr("结果 1"), HasSubstr("X = 5")));
  EXPECT_EQ(0, status);
}

TEST_F(ConsoleDialogs, OfferTheChoosersOfTheHost) {
  EXPECT_THAT(Run("ND\nclick 选择\n3\ncontinuous\n0.25\nb.dxf\nclose\n"), HasSubstr("颜色 3"));
  EXPECT_THAT(Run("ND\nclick 选择\n随层\n\n默认\n*cancel*\nclose\n"), HasSubstr("文件 -"));
  const auto output = Run("ND\nclick 选择\n300\nByBlock\nNOSUCH\nByLayer\n7\n2.11\n\nclose\n");
  EXPECT_THAT(output, HasSubstr("“300”不能选择。"));
  EXPECT_THAT(output, HasSubstr("颜色 0"));
  EXPECT_THAT(output, HasSubstr("“NOSUCH”不能选择。"));
  EXPECT_THAT(output, HasSubstr("线宽 211"));
  EXPECT_EQ(1, status);
}

TEST_F(ConsoleDialogs, TakeLinesForBarsAtTheCommandPrompt) {
  EXPECT_THAT(Run("bar click 按下\n"), HasSubstr("没有打开的面板"));
  EXPECT_EQ(1, status);
  const auto output =
      Run("BARON\nbar click 按下\nbar show\nID\n1,2\nbar close\nBARON\nbar click 按下\nBAROFF\n");
  EXPECT_THAT(output, HasSubstr("面板：当前图层\n命令: bar click 按下\n面板按下"));
  EXPECT_THAT(output, HasSubstr("[按下]"));
  EXPECT_EQ(0, status);
  EXPECT_THAT(Run("BARON\nbar close\nbar click 按下\nBAROFF\n"), HasSubstr("没有打开的面板"));
}

} // namespace
