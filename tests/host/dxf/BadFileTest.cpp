// What is no drawing at all, and codes that are none: a sentence that names the file and the line.
#include "host/dxf/BinaryDxf.h"
#include "tests/host/afx/TemporaryFolder.h"
#include "tests/host/dxf/DrawingFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace {

using testing::HasSubstr;

std::string errorOf(const std::string& bytes) {
  return Open(bytes).error();
}

TEST(BadFile, ThatIsNoDrawingIsRefused) {
  EXPECT_EQ(errorOf(""), "图.dxf：不是 DXF 图形文件：没有任何段（SECTION）");
  EXPECT_EQ(errorOf("\n\n\n"), "图.dxf：不是 DXF 图形文件：没有任何段（SECTION）");
  EXPECT_EQ(errorOf("0\nEOF\n"), "图.dxf：不是 DXF 图形文件：没有任何段（SECTION）");
  EXPECT_EQ(errorOf("Hello, world"), "图.dxf：第 1 行：应为组码（整数），实际为“Hello, world”");
  EXPECT_EQ(errorOf("{\"a\": 1}\n"), "图.dxf：第 1 行：应为组码（整数），实际为“{\"a\": 1}”");
  EXPECT_THAT(errorOf(std::string(1000, '\0')), HasSubstr("第 1 行：应为组码"));
}

TEST(BadFile, InTheOtherFormOfDrawingsSaysWhatToDo) {
  for (const char* version : {"AC1032", "AC1015", "AC1009", "AC2.10", "AC1.40", "MC0.0"})
    EXPECT_EQ(errorOf(version + std::string(100, '\0')),
              "图.dxf：这是 DWG 文件，请先转换为 DXF（可安装 dwg2dxf 或 ODA 转换器）");
}

TEST(BadFile, ThatIsAFolderOrIsMissingIsRefused) {
  const TemporaryFolder folder;
  AcDbDatabase first(false);
  const auto missing = dxf::ReadDrawing(folder / "没有.dxf", first);
  EXPECT_FALSE(missing.ok);
  EXPECT_THAT(missing.error.ToUtf8(), HasSubstr("没有.dxf"));
  AcDbDatabase second(false);
  const auto itself = dxf::ReadDrawing(folder / "", second);
  EXPECT_FALSE(itself.ok);
  EXPECT_THAT(itself.error.ToUtf8(), HasSubstr(folder.Path().filename().string()));
}

TEST(BadFile, WithACodeThatIsNoneNamesTheLine) {
  for (const char* code : {"abc", "1.5", "0x5", "--1", "99999999999", "10 20", ""}) {
    std::string file =
        DrawingOf("0 LINE\n5 20\n8 0\n10 1.0\n20 2.0\n0 CIRCLE\n5 21\n8 0\n10 5.0\n20 6.0\n40 1.0");
    file.replace(file.find("10\n1.0"), 2, code);
    EXPECT_EQ(errorOf(file), "图.dxf：第 21 行：应为组码（整数），实际为“" + std::string(code) + "”");
    const Opened recovered = Open(file, true);
    ASSERT_TRUE(recovered.ok()) << recovered.error();
    EXPECT_THAT(recovered.repairs(), HasSubstr("21/-1 第 21 行：应为组码（整数），实际为“" +
                                               std::string(code) + "”；到下一条记录之间的内容已丢弃"));
    EXPECT_FALSE(EntityAt(*recovered.database, 0).isNull());
    EXPECT_FALSE(EntityAt(*recovered.database, 1).isNull()); // what stands behind the broken record
    EXPECT_TRUE(Open(recovered.saved()).ok());
  }
}

TEST(BadFile, WithCodesBeyondTheFormatIsKept) {
  const std::string file = DrawingOf(
      "0 LINE\n-5 x\n8 0\n-2147483648 y\n10 1.0\n20 2.0\n11 1\n21 1\n5555 z\n2147483647 w", "AC1009");
  EXPECT_EQ(Open(file).saved(), file);
}

TEST(BadFile, OfGarbageIsRefusedOrHarmless) {
  std::mt19937 random(20240607);
  for (int round = 0; round < 300; ++round) {
    std::string bytes(random() % 4000, '\0');
    for (char& c : bytes) c = static_cast<char>(random());
    for (const char* start : {"", "AutoCAD Binary DXF\r\n\x1a"}) {
      std::string file = start;
      if (*start) file += '\0';
      file += bytes;
      EXPECT_FALSE(Open(file).ok());
      const Opened recovered = Open(file, true);
      EXPECT_TRUE(!recovered.ok() || Open(recovered.saved(), true).ok());
    }
  }
}

// Bytes of a real drawing changed at random places.
TEST(BadFile, OfAChangedByteIsRefusedOrOpensAndSavesTheSameTwice) {
  std::mt19937 random(7);
  for (const char* name : {"ascii_R12", "binary_R12", "frozen_off", "recursive_insert", "byblock_bylayer"}) {
    const std::string original = SampleBytes(name);
    for (int round = 0; round < 150; ++round) {
      std::string file = original;
      for (int i = 0; i < 3; ++i)
        file[random() % file.size()] = static_cast<char>("\n 0159AZ\x80\xff-.,"[random() % 14]);
      for (const bool recover : {false, true}) {
        const Opened opened = Open(file, recover);
        if (!opened.ok()) continue;
        const std::string saved = opened.saved();
        const Opened again = Open(saved);
        ASSERT_TRUE(again.ok()) << name << " round " << round << again.error();
        EXPECT_TRUE(again.saved() == saved) << name << " round " << round;
      }
    }
  }
}

// What recovery leaves out ahead of the version must not change what the file is taken for.
TEST(BadFile, WithABrokenLineAheadOfItsVersionIsOfThatVersion) {
  const std::string file =
      "broken\n" + DrawingOf("0 POINT\n5 A1\n100 AcDbEntity\n8 0\n100 AcDbPoint\n10 1\n20 2\n30 3");
  const Opened opened = Open(file, true);
  ASSERT_TRUE(opened.ok()) << opened.error();
  EXPECT_EQ(opened.database->form().version, "AC1015");
  EXPECT_EQ(Open(opened.saved()).saved(), opened.saved());
}

TEST(BadFile, ReadingCanBeCancelled) {
  AcDbDatabase database(false);
  dxf::ReadOptions options;
  double last = 0;
  options.progress = [&](double done) {
    EXPECT_GE(done, last);
    EXPECT_LE(done, 1.0);
    last = done;
    return done < 0.5;
  };
  const auto report = dxf::ReadDrawingBytes(SampleBytes("many_lines"), L"图.dxf", database, options);
  EXPECT_FALSE(report.ok);
  EXPECT_EQ(report.error, L"图.dxf：读图已取消");
  EXPECT_GE(last, 0.5);
}

} // namespace
