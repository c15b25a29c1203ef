#include "host/commands/HostCommands.h"
#include "host/console/ConsoleFrontEnd.h"
#include "host/console/ConsoleProgram.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/EdSession.h"
#include "host/ed/acedPrompts.h"
#include "host/ed/acutPrintf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

using ::testing::HasSubstr;
using ::testing::Not;

namespace fs = std::filesystem;

namespace {

class Console : public ::testing::Test {
 protected:
  Console() {
    commands::RegisterHostCommands();
    std::string pattern = (fs::temp_directory_path() / "zpconsole-XXXXXX").string();
    m_folder = mkdtemp(pattern.data());
  }
  ~Console() override {
    acedRegCmds->removeGroup(L"TEST");
    fs::remove_all(m_folder);
  }
  std::string path(const char* name) const { return (m_folder / name).string(); }
  std::string write(const char* name, const std::string& bytes) const {
    std::ofstream(m_folder / name, std::ios::binary) << bytes;
    return path(name);
  }
  // What the program prints; its exit status is in status.
  std::string run(const std::string& input, ConsoleJob job = {}, bool interactive = false) {
    std::istringstream in(input);
    std::ostringstream out;
    status = console::RunConsole(job, in, out, interactive);
    return out.str();
  }
  std::string runScript(const std::string& bytes) {
    ConsoleJob job;
    job.script = CString::FromUtf8(write("main.scr", bytes));
    return run("NEVER READ\n", job);
  }
  int status = -1;

 private:
  fs::path m_folder;
};

void alert() {
  acedAlert(L"注意 100%");
}

void askBox() {
  const auto box =
      EdSession::instance().frontEnd()->messageBox({L"青岚提示", L"确定吗？", {L"是(Y)", L"否(N)"}, 1});
  acutPrintf(L"\n[%d]\n", box.button);
}

} // namespace

TEST_F(Console, ASessionReadsLikeOne) {
  EXPECT_EQ("; 一条线\n命令: LINE\n指定第一点: 0,0\n指定下一点或 [放弃(U)]: 1,0\n指定下一点或 [放弃(U)]: \n"
            "图形“图形1”的修改没有保存。\n",
            run("; 一条线\nLINE\n0,0\n1,0\n\n"));
  EXPECT_EQ(console::kDone, status);
}

TEST_F(Console, ATerminalShowsTypedLinesItself) {
  EXPECT_EQ("命令: 指定点: X = 1  Y = 2  Z = 0\n命令: \n", run("ID\n1,2\n", {}, true));
}

TEST_F(Console, ALineThatCannotBeObeyedIsNamed) {
  const auto output = run("ID\n1;2\n1,2\nNOSUCH\n");
  EXPECT_EQ(console::kLineRefused, status);
  EXPECT_THAT(output, HasSubstr("** 第 2 行“1;2”未执行。应为：点 x,y"));
  EXPECT_THAT(output, HasSubstr("X = 1  Y = 2  Z = 0"));
  EXPECT_THAT(
      output,
      HasSubstr("未知命令“NOSUCH”。按 HELP 查看命令。\n** 第 4 行“NOSUCH”未执行。应为：一个命令名。"));
}

TEST_F(Console, AScriptTakesThePlaceOfTheStandardInput) {
  const auto output = runScript("ID\n3,4\n");
  EXPECT_EQ(console::kDone, status);
  EXPECT_THAT(output, HasSubstr("X = 3"));
  EXPECT_THAT(output, Not(HasSubstr("NEVER")));
}

TEST_F(Console, AScriptStopsWhereItCannotGoOn) {
  const auto output = runScript("NOSUCH\nID\n3,4\n");
  EXPECT_EQ(console::kLineRefused, status);
  EXPECT_THAT(output, HasSubstr("main.scr 第 1 行“NOSUCH”未执行，脚本到此停止。"));
  EXPECT_THAT(output, Not(HasSubstr("X = 3")));
}

TEST_F(Console, TheEndOfTheInputCancelsAPrompt) {
  const auto output = run("LINE\n0,0\n1,0");
  EXPECT_THAT(output, HasSubstr("*取消*"));
  EXPECT_THAT(output, HasSubstr("图形已恢复到命令之前的状态"));
  EXPECT_EQ(console::kDone, status);
}

TEST_F(Console, AScriptThatCallsItselfEnds) {
  const auto name = path("self.scr");
  write("self.scr", "SCRIPT\n" + name + "\n");
  const auto output = run("SCRIPT\n" + name + "\nID\n7,8\n");
  EXPECT_THAT(output, HasSubstr("脚本嵌套超过"));
  EXPECT_THAT(output, HasSubstr("X = 7")) << "typed lines go on";
  EXPECT_EQ(console::kLineRefused, status);
}

TEST_F(Console, AScriptThatIsMissingIsARefusedLine) {
  run("SCRIPT\n" + path("none.scr") + "\n");
  EXPECT_EQ(console::kLineRefused, status);
  ConsoleJob job;
  job.script = L"no-such.scr";
  run("", job);
  EXPECT_EQ(console::kUnusable, status);
}

TEST_F(Console, FilesThatCannotBeReadEndTheProgram) {
  ConsoleJob job;
  job.drawing = L"no-such.dxf";
  EXPECT_THAT(run("ID\n1,1\n", job), HasSubstr("没有文件“no-such.dxf”"));
  EXPECT_EQ(console::kUnusable, status);
  job.drawing = CString::FromUtf8(write("text.dxf", "this is no drawing\n"));
  EXPECT_THAT(run("ID\n1,1\n", job), Not(HasSubstr("X = 1")));
  EXPECT_EQ(console::kUnusable, status);
  job.drawing.reset();
  job.plugIns = {CString::FromUtf8(write("text.so", "this is no plug-in\n"))};
  EXPECT_THAT(run("ID\n1,1\n", job), HasSubstr("text.so”不能加载：不是本机的共享库"));
  EXPECT_EQ(console::kUnusable, status);
}

TEST_F(Console, BinaryGarbageIsRefusedLineByLineAndShownSafely) {
  std::string garbage;
  for (int i = 0; i < 4096; ++i) garbage.push_back(static_cast<char>((i * 151 + i / 7) & 0xFF));
  const auto output = run(garbage);
  EXPECT_EQ(console::kLineRefused, status);
  EXPECT_EQ(std::string::npos, output.find('\x1b'));
  EXPECT_EQ(std::string::npos, output.find('\0'));
}

TEST_F(Console, AHugeLineIsRefusedAndTheNextObeyed) {
  const auto output = run(std::string(5'000'000, 'x') + "\nID\n1,2\n");
  EXPECT_THAT(output, HasSubstr("X = 1"));
  EXPECT_LT(output.size(), 100'000u);
  EXPECT_EQ(console::kLineRefused, status);
}

TEST_F(Console, AMessageBoxIsAnsweredByTheNextLine) {
  acedRegCmds->addCommand(L"TEST", L"TBOX", L"TBOX", ACRX_CMD_MODAL, askBox);
  const auto output = run("TBOX\nanswer 是\nTBOX\nn\nTBOX\nanswer 也许\nanswer Y\nTBOX\nTBOX\n");
  EXPECT_THAT(output, HasSubstr("[青岚提示] 确定吗？\n是(Y)/否(N) <否(N)>: answer 是\n[0]"));
  EXPECT_THAT(output, HasSubstr("<否(N)>: n\n[1]"));
  EXPECT_THAT(output, HasSubstr("没有按钮“也许”"));
  EXPECT_THAT(output, HasSubstr("（未回答，取默认按钮“否(N)”）\n[1]\n命令: TBOX"));
  EXPECT_EQ(console::kLineRefused, status);
}

TEST_F(Console, AMessageIsPrintedAsItIs) {
  acedRegCmds->addCommand(L"TEST", L"TALERT", L"TALERT", ACRX_CMD_MODAL, alert);
  EXPECT_THAT(run("TALERT\nanswer 确定\n"), HasSubstr("[zpcad] 注意 100%\n确定 <确定>: answer 确定\n"));
  EXPECT_EQ(console::kDone, status);
  EXPECT_THAT(run("TALERT\nID\n1,2\n"), HasSubstr("（未回答，取默认按钮“确定”）\n命令: ID"));
  EXPECT_EQ(console::kDone, status);
}

TEST_F(Console, QuitKeepsUnsavedWorkUnlessToldOtherwise) {
  const std::string draw = "LINE\n0,0\n1,0\n\n";
  EXPECT_THAT(run(draw + "QUIT\nID\n1,2\n"), HasSubstr("X = 1"));
  EXPECT_EQ(console::kLineRefused, status);
  EXPECT_THAT(run(draw + "QUIT\nanswer 是\nID\n1,2\n"), Not(HasSubstr("X = 1")));
  EXPECT_EQ(console::kDone, status);
  EXPECT_THAT(run("QUIT\nID\n1,2\n"), Not(HasSubstr("X = 1"))) << "nothing to lose";
  EXPECT_EQ(console::kDone, status);
}

TEST_F(Console, WhatIsSavedIsThereAgain) {
  const auto file = path("a.dxf");
  run("LINE\n0,0\n30,40\n\nSAVEAS\n" + file + "\nQUIT\n");
  EXPECT_EQ(console::kDone, status);
  ConsoleJob job;
  job.drawing = CString::FromUtf8(file);
  EXPECT_THAT(run("LIST\nall\n\n", job), HasSubstr("长度：50"));
  EXPECT_EQ(console::kDone, status);
}

TEST_F(Console, NothingOfOneRunReachesTheNext) {
  run("NOSUCH\n");
  EXPECT_EQ("", run(""));
  EXPECT_EQ(console::kDone, status);
  EXPECT_EQ(0u, acDocManager->documentCount());
}
