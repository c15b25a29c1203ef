#include "host/commands/HostCommands.h"
#include "host/console/ConsoleFrontEnd.h"
#include "host/console/ConsoleProgram.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/EdSession.h"
#include "host/ed/LongTask.h"
#include "host/ed/acedPrompts.h"
#include "host/ed/acutPrintf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <poll.h>
#include <pty.h>
#include <sstream>
#include <sys/wait.h>
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
    status = console::RunConsole(job, in, out, {interactive});
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

namespace {

void interruptItself() {
  std::raise(SIGINT);
  ads_point point;
  acutPrintf(L"\n[%d]\n", acedGetPoint(nullptr, L"\n指定点:", point) == RTCAN);
}

// Counts to ten unless it is cancelled.
void longTask() {
  LongTask task(L"数数");
  int count = 0;
  while (count < 10 && task.advance(count / 10.0))
    if (++count == 3) std::raise(SIGINT);
  acutPrintf(L"\n[数到 %d]\n", count);
}

} // namespace

TEST_F(Console, AnInterruptIsEscapeForWhoTypes) {
  acedRegCmds->addCommand(L"TEST", L"INTERRUPTED", L"INTERRUPTED", ACRX_CMD_MODAL, interruptItself);
  const auto output = run("INTERRUPTED\nID\n1,2\n", {}, true);
  EXPECT_THAT(output, HasSubstr("[1]"));
  EXPECT_THAT(output, HasSubstr("X = 1")) << "the next line is read as always";
  EXPECT_EQ(console::kDone, status);
}

TEST_F(Console, AnInterruptEndsALongTaskAndTheScriptBehindIt) {
  acedRegCmds->addCommand(L"TEST", L"COUNT", L"COUNT", ACRX_CMD_MODAL, longTask);
  write("count.scr", "COUNT\nID\n3,4\n");
  const auto output = run("SCRIPT\n" + path("count.scr") + "\nID\n1,2\n", {}, true);
  EXPECT_THAT(output, HasSubstr("[数到 3]"));
  EXPECT_THAT(output, Not(HasSubstr("X = 3")));
  EXPECT_THAT(output, HasSubstr("X = 1"));
}

TEST_F(Console, AnInterruptEndsInputThatNobodyTypes) {
  acedRegCmds->addCommand(L"TEST", L"COUNT", L"COUNT", ACRX_CMD_MODAL, longTask);
  const auto output = run("LINE\n0,0\n1,1\n\nCOUNT\nERASE\nall\n\n");
  EXPECT_THAT(output, HasSubstr("[数到 3]"));
  EXPECT_THAT(output, Not(HasSubstr("ERASE")));
  EXPECT_THAT(output, HasSubstr("的修改没有保存"));
  EXPECT_EQ(console::kLineRefused, status);
  EXPECT_THAT(runScript("COUNT\nID\n3,4\n"), Not(HasSubstr("X = 3")));
  EXPECT_EQ(console::kLineRefused, status);
}

TEST_F(Console, AfterwardsAnInterruptIsWhatItWasBefore) {
  struct sigaction before {};
  sigaction(SIGINT, nullptr, &before);
  run("");
  struct sigaction after {};
  sigaction(SIGINT, nullptr, &after);
  EXPECT_EQ(before.sa_handler, after.sa_handler);
}

namespace {

// The console in a process of its own at a terminal that the test holds.
class Terminal {
 public:
  Terminal() {
    m_child = forkpty(&m_master, nullptr, nullptr, nullptr);
    if (m_child != 0) return;
    commands::RegisterHostCommands();
    std::_Exit(console::RunConsole({}, std::cin, std::cout, {true, true}));
  }
  ~Terminal() {
    if (m_child > 0) {
      kill(m_child, SIGKILL);
      waitpid(m_child, nullptr, 0);
    }
    close(m_master);
  }
  void type(const std::string& text) { EXPECT_GT(::write(m_master, text.data(), text.size()), 0); }
  // Waits until the text is shown behind what was waited for before.
  bool shows(const std::string& text) {
    for (;;) {
      const auto found = m_shown.find(text);
      if (found != std::string::npos) {
        m_shown.erase(0, found + text.size());
        return true;
      }
      pollfd ready{m_master, POLLIN, 0};
      constexpr int kPatience = 20'000; // milliseconds
      char bytes[4096];
      if (poll(&ready, 1, kPatience) != 1) return false;
      const auto count = ::read(m_master, bytes, sizeof bytes);
      if (count <= 0) return false;
      m_shown.append(bytes, static_cast<std::size_t>(count));
    }
  }
  int exitStatus() {
    int raw = 0;
    waitpid(std::exchange(m_child, -1), &raw, 0);
    return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  }

 private:
  int m_master = -1;
  pid_t m_child = -1;
  std::string m_shown;
};

constexpr char kInterruptKey[] = "\x03";

} // namespace

TEST(ConsoleAtATerminal, CtrlCCancelsThePromptAndTheSecondAtTheCommandPromptEnds) {
  Terminal terminal;
  ASSERT_TRUE(terminal.shows("命令: "));
  terminal.type("LINE\n0,0\n");
  ASSERT_TRUE(terminal.shows("指定下一点"));
  terminal.type(kInterruptKey);
  ASSERT_TRUE(terminal.shows("*取消*"));
  ASSERT_TRUE(terminal.shows("命令: "));
  terminal.type(kInterruptKey);
  ASSERT_TRUE(terminal.shows("再按一次 Ctrl+C"));
  ASSERT_TRUE(terminal.shows("命令: "));
  terminal.type("ID\n1,2\n");
  ASSERT_TRUE(terminal.shows("X = 1"));
  ASSERT_TRUE(terminal.shows("命令: "));
  terminal.type(kInterruptKey);
  ASSERT_TRUE(terminal.shows("再按一次 Ctrl+C")) << "a line between them makes the next one the first again";
  ASSERT_TRUE(terminal.shows("命令: "));
  terminal.type(kInterruptKey);
  EXPECT_FALSE(terminal.shows("命令: "));
  EXPECT_EQ(console::kDone, terminal.exitStatus());
}
