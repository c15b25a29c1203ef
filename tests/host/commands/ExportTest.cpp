#include "tests/host/commands/CommandFixture.h"

namespace fs = std::filesystem;

namespace {
using ExportCommand = CommandFixture;
}

TEST_F(ExportCommand, TheEndingChoosesTheFormat) {
  run(L"LINE", {L"0,0", L"100,50", L""});
  run(L"EXPORT", {file("a.pdf"), L"", L""});
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_TRUE(read(file("a.pdf")).starts_with("%PDF-"));
  run(L"EXPORT", {file("a.png"), L"E", L"A4"});
  EXPECT_TRUE(read(file("a.png")).starts_with("\x89PNG"));
  EXPECT_TRUE(frontEnd.said(L"图纸 297 x 210 毫米"));
}

TEST_F(ExportCommand, AnotherEndingIsRefusedWithWhatIsExpected) {
  run(L"EXPORT", {file("a.dwg"), L"", L""});
  EXPECT_TRUE(refused());
  EXPECT_NE(-1, reason().Find(L"a.dwg"));
  EXPECT_FALSE(fs::exists(file("a.dwg").ToUtf8()));
}

TEST_F(ExportCommand, AWindowIsPlottedAtTheScaleOfThePaper) {
  run(L"LINE", {L"0,0", L"100,50", L""});
  run(L"EXPORT", {file("a.svg"), L"W", L"0,0", L"4000,2000", L"420x220"});
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_TRUE(frontEnd.said(L"1 毫米合 10 图形单位"));
}

TEST_F(ExportCommand, AWindowWithoutHeightIsRefused) {
  run(L"EXPORT", {file("a.svg"), L"W", L"0,0", L"10,0"});
  EXPECT_TRUE(refused());
  EXPECT_FALSE(fs::exists(file("a.svg").ToUtf8()));
}

TEST_F(ExportCommand, PaperThatIsNoneIsRefused) {
  run(L"EXPORT", {file("a.svg"), L"", L"A9"});
  EXPECT_TRUE(refused());
  EXPECT_NE(-1, reason().Find(L"A9"));
}

TEST_F(ExportCommand, AFileThatIsThereIsReplacedOnlyWhenTheUserSaysSo) {
  write(file("a.svg"), "precious");
  run(L"EXPORT", {file("a.svg"), L"", L""});
  EXPECT_TRUE(refused());
  EXPECT_EQ("precious", read(file("a.svg")));
  frontEnd.answers = {0};
  run(L"EXPORT", {file("a.svg"), L"", L""});
  EXPECT_NE("precious", read(file("a.svg")));
}

TEST_F(ExportCommand, AFolderThatIsNotThereIsTold) {
  run(L"EXPORT", {file("none/a.svg"), L"", L""});
  EXPECT_TRUE(refused());
  EXPECT_NE(-1, reason().Find(L"none"));
}

TEST_F(ExportCommand, TheDrawingStaysAsItWas) {
  run(L"LINE", {L"0,0", L"100,50", L""});
  run(L"SAVEAS", {file("plan.dxf")});
  run(L"EXPORT", {file("a.svg"), L"", L""});
  EXPECT_FALSE(database().isModified());
}
