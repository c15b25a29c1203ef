#include "tests/host/commands/CommandFixture.h"

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {
using FileCommands = CommandFixture;
}

TEST_F(FileCommands, SaveAsNamesTheDrawingAndSaveKeepsTheName) {
  const CString path = file("plan.dxf");
  run(L"LINE", {L"0,0", L"1,0", L""});
  run(L"SAVEAS", {file("plan")});
  EXPECT_EQ(path, curDoc()->fileName());
  EXPECT_EQ(L"plan.dxf", curDoc()->docTitle());
  EXPECT_FALSE(database().isModified());
  run(L"POINT", {L"5,5"});
  EXPECT_TRUE(database().isModified());
  run(L"SAVE");
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  run(L"CLOSE");
  run(L"OPEN", {path});
  EXPECT_NE(nullptr, only<AcDbPoint>());
  EXPECT_TRUE(frontEnd.said(L"实体 2 个"));
}

TEST_F(FileCommands, SaveAsWritesInTheVersionAskedFor) {
  run(L"PLINE", {L"0,0", L"1,0", L"2,5", L""});
  frontEnd.answers = {0};
  run(L"SAVEAS", {L"版本", L"R12", file("r12.dxf")});
  ASSERT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_NE(std::string::npos, read(file("r12.dxf")).find("AC1009"));
  EXPECT_NE(std::string::npos, read(file("r12.dxf")).find("POLYLINE"));
  EXPECT_TRUE(frontEnd.said(L"R12 格式不能保存"));
  run(L"SAVE");
  EXPECT_NE(std::string::npos, read(file("r12.dxf")).find("AC1009")) << "the version stays";
  run(L"SAVEAS", {L"V", L"R2013", file("new.dxf")});
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_NE(std::string::npos, read(file("new.dxf")).find("AC1027"));
}

TEST_F(FileCommands, AVersionThatWouldLoseSomethingIsNotTakenUnasked) {
  run(L"SAVEAS", {L"V", L"R12", file("same.dxf")});
  EXPECT_TRUE(refused());
  EXPECT_NE(std::string::npos, read(file("same.dxf")).find("AC1027"));
}

TEST_F(FileCommands, ALongTaskCanBeCancelled) {
  for (int i = 0; i < 5000; ++i) add(new AcDbPoint(AcGePoint3d(i, 0, 0)));
  run(L"SAVEAS", {file("a.dxf")});
  const std::string whole = read(file("a.dxf"));
  frontEnd.cancelsTasks = true;
  add(new AcDbPoint(AcGePoint3d(0, 1, 0)));
  run(L"SAVE");
  EXPECT_TRUE(frontEnd.said(L"存图已取消"));
  EXPECT_EQ(whole, read(file("a.dxf")));
  EXPECT_TRUE(database().isModified());
  write(file("b.dxf"), whole);
  const auto* before = curDoc();
  run(L"OPEN", {file("b.dxf")});
  EXPECT_TRUE(frontEnd.said(L"读图已取消"));
  EXPECT_EQ(before, curDoc());
  EXPECT_EQ(1u, acDocManager->documentCount());
  run(L"AUDIT", {L"N"});
  EXPECT_TRUE(frontEnd.said(L"检查已取消"));
  run(L"EXPORT", {file("a.pdf"), L"", L""});
  EXPECT_TRUE(frontEnd.said(L"输出已取消"));
  EXPECT_FALSE(fs::exists(file("a.pdf").ToUtf8()));
  EXPECT_FALSE(refused());
}

TEST_F(FileCommands, TheEndOfALongTaskIsTold) {
  run(L"AUDIT", {L"N"});
  EXPECT_GT(frontEnd.tasksTold, 0);
  EXPECT_EQ(1, frontEnd.tasksEnded);
}

TEST_F(FileCommands, AScriptEndsWithTheTaskThatIsCancelled) {
  for (int i = 0; i < 5000; ++i) add(new AcDbPoint(AcGePoint3d(i, 0, 0)));
  run(L"SAVEAS", {file("a.dxf")});
  add(new AcDbPoint(AcGePoint3d(0, 1, 0)));
  write(file("s.scr"), "SAVE\nERASE\nall\n\n");
  frontEnd.cancelsTasks = true;
  frontEnd.type({L"SCRIPT", file("s.scr")});
  EdSession::instance().run();
  EXPECT_TRUE(frontEnd.said(L"存图已取消"));
  EXPECT_EQ(5001u, entityCount());
}

TEST_F(FileCommands, SaveAsksForANameWhereThereIsNone) {
  run(L"SAVE", {file("new.dxf")});
  EXPECT_TRUE(fs::exists(file("new.dxf").ToUtf8()));
  EXPECT_EQ(L"new.dxf", curDoc()->docTitle());
}

TEST_F(FileCommands, AnotherFileIsReplacedOnlyWhenTheUserSaysSo) {
  write(file("old.dxf"), "precious");
  run(L"SAVEAS", {file("old.dxf")});
  EXPECT_TRUE(refused());
  EXPECT_EQ("precious", read(file("old.dxf")));
  frontEnd.answers = {0};
  run(L"SAVEAS", {file("old.dxf")});
  EXPECT_NE("precious", read(file("old.dxf")));
}

TEST_F(FileCommands, AnExpertIsNotAsked) {
  write(file("old.dxf"), "precious");
  run(L"SETVAR", {L"EXPERT", L"2"});
  run(L"SAVEAS", {file("old.dxf")});
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_NE("precious", read(file("old.dxf")));
}

TEST_F(FileCommands, AFolderThatIsNotThereKeepsTheDrawingUnsaved) {
  run(L"POINT", {L"5,5"});
  run(L"SAVEAS", {file("none/plan.dxf")});
  EXPECT_TRUE(refused());
  EXPECT_TRUE(database().isModified());
  EXPECT_FALSE(curDoc()->isNamed());
}

TEST_F(FileCommands, SavingOverAnotherOpenDrawingIsRefused) {
  run(L"SAVEAS", {file("a.dxf")});
  run(L"NEW");
  run(L"SAVEAS", {file("a.dxf")});
  EXPECT_GE(reason().Find(L"另一个打开着的图形"), 0);
}

TEST_F(FileCommands, OpeningAFileThatIsNoneSaysWhatToDo) {
  run(L"OPEN", {file("none.dxf")});
  EXPECT_GE(reason().Find(L"没有文件"), 0);
  write(file("text.dxf"), "not a drawing\nat all\n");
  run(L"OPEN", {file("text.dxf")});
  EXPECT_GE(reason().Find(L"text.dxf"), 0) << reason().ToUtf8();
  EXPECT_GE(frontEnd.refusals.back().expected.Find(L"RECOVER"), 0);
  EXPECT_EQ(document, curDoc());
}

TEST_F(FileCommands, ADrawingThatIsOpenIsOnlyMadeCurrent) {
  run(L"SAVEAS", {file("a.dxf")});
  run(L"NEW");
  run(L"OPEN", {file("a.dxf")});
  EXPECT_EQ(document, curDoc());
  EXPECT_EQ(2u, acDocManager->documentCount());
}

TEST_F(FileCommands, ASavedRecoveryKeepsTheBrokenFile) {
  run(L"LINE", {L"0,0", L"1,0", L""});
  run(L"SAVEAS", {file("whole.dxf")});
  auto bytes = read(file("whole.dxf"));
  bytes.resize(bytes.find("AcDbLine") + 12);
  write(file("cut.dxf"), bytes);
  run(L"OPEN", {file("cut.dxf")});
  EXPECT_TRUE(refused());
  frontEnd.refusals.clear();
  run(L"RECOVER", {file("cut.dxf")});
  ASSERT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_TRUE(frontEnd.said(L"读入时修正"));
  run(L"SAVE");
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_EQ(bytes, read(file("cut.dxf.rescued-1")));
  run(L"SAVE");
  EXPECT_FALSE(fs::exists(file("cut.dxf.rescued-2").ToUtf8())) << "once is enough";
}

TEST_F(FileCommands, CloseAsksBeforeWorkIsLost) {
  run(L"POINT", {L"1,1"});
  run(L"CLOSE");
  EXPECT_TRUE(refused());
  EXPECT_EQ(document, curDoc());
  frontEnd.answers = {0};
  run(L"CLOSE");
  EXPECT_EQ(nullptr, curDoc());
  frontEnd.refusals.clear();
  run(L"CLOSE");
  EXPECT_TRUE(refused()) << "nothing to close";
  run(L"LINE");
  EXPECT_EQ(2u, frontEnd.refusals.size());
  run(L"U");
  EXPECT_EQ(3u, frontEnd.refusals.size());
}

TEST_F(FileCommands, QuitAsksBeforeWorkIsLost) {
  run(L"POINT", {L"1,1"});
  run(L"QUIT");
  EXPECT_FALSE(session().quitRequested());
  frontEnd.answers = {0};
  run(L"QUIT");
  EXPECT_TRUE(session().quitRequested());
}

TEST_F(FileCommands, ScriptsRunTheirLines) {
  write(file("s.scr"), "; 画点\nPOINT\n5,6\n");
  run(L"SCRIPT", {file("s.scr")});
  session().run();
  EXPECT_EQ(AcGePoint3d(5, 6, 0), only<AcDbPoint>()->position());
  run(L"SCRIPT", {file("none.scr")});
  EXPECT_TRUE(refused());
}

TEST_F(FileCommands, ApploadTellsWhyAFileIsNoPlugIn) {
  write(file("text.so"), "text");
  run(L"APPLOAD", {file("text.so")});
  EXPECT_GE(reason().Find(L"不是本机的共享库"), 0);
  run(L"APPLOAD", {L"U", L"none.so"});
  EXPECT_GE(reason().Find(L"没有加载"), 0);
  run(L"APPLOAD", {L"?"});
  EXPECT_TRUE(frontEnd.said(L"已加载 0 个插件"));
}
