// Files that end too early, at every byte: refused when something is missing, and saved as far as it goes
// when that is asked for, with a word on what is gone.
#include "tests/host/dxf/DrawingFiles.h"
#include "tests/host/dxf/TagCompare.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;

const std::string& smallDrawing() {
  static const std::string file = Tags(
      "0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1015\n9 $HANDSEED\n5 FF\n0 ENDSEC\n"
      "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n5 2\n330 0\n100 AcDbSymbolTable\n70 1\n0 LAYER\n5 10\n330 2\n"
      "100 AcDbSymbolTableRecord\n100 AcDbLayerTableRecord\n2 管线\n70 0\n62 7\n6 Continuous\n0 ENDTAB\n0 "
      "ENDSEC\n"
      "0 SECTION\n2 BLOCKS\n0 BLOCK\n5 30\n8 0\n2 A\n70 0\n10 0.0\n20 0.0\n30 0.0\n3 A\n1 \n"
      "0 LINE\n5 31\n8 管线\n10 0.0\n20 0.0\n11 1.0\n21 1.0\n0 ENDBLK\n5 32\n8 0\n0 ENDSEC\n"
      "0 SECTION\n2 ENTITIES\n0 INSERT\n5 40\n8 管线\n66 1\n2 A\n10 0.0\n20 0.0\n30 0.0\n"
      "0 ATTRIB\n5 41\n8 0\n10 0.0\n20 0.0\n40 2.5\n1 文字\n2 TAG\n0 SEQEND\n5 42\n8 0\n"
      "1001 HVAC\n1000 系统\n1040 2.5\n0 ENDSEC\n"
      "0 SECTION\n2 OBJECTS\n0 DICTIONARY\n5 50\n330 0\n100 AcDbDictionary\n3 X\n350 51\n"
      "0 XRECORD\n5 51\n330 50\n100 AcDbXrecord\n280 1\n1 a\n0 ENDSEC\n0 EOF");
  return file;
}

// Every sentence about what is lost names a place or says that the end is missing.
void expectRecovered(const std::string& part, const std::string& where) {
  const Opened opened = Open(part, true);
  if (!opened.ok()) { // nothing that could be a drawing
    EXPECT_THAT(opened.error(), HasSubstr("没有任何段")) << where;
    return;
  }
  const std::string saved = opened.saved();
  const Opened again = Open(saved);
  ASSERT_TRUE(again.ok()) << where << again.error();
  EXPECT_TRUE(again.saved() == saved)
      << where << testing::PrintToString(Differences(RecordsOf(saved), RecordsOf(again.saved())));
  EXPECT_NE(opened.repairs(), "") << where;
}

TEST(Truncation, AtEveryByteIsRefusedOrWholeAndCanBeRecovered) {
  const std::string& file = smallDrawing();
  const std::size_t lastSection = file.rfind("ENDSEC") + 6;
  const std::size_t end = file.rfind("EOF") + 3;
  for (std::size_t length = 0; length < end; ++length) {
    const std::string part = file.substr(0, length);
    const std::string where = "cut at " + std::to_string(length) + ": ";
    const Opened opened = Open(part);
    if (length < lastSection) {
      EXPECT_FALSE(opened.ok()) << where;
      EXPECT_THAT(opened.error(), testing::StartsWith("图.dxf：")) << where;
    }
    if (opened.ok()) { // only the end mark is missing, or the rest of it a record of its own
      EXPECT_THAT(opened.repairs(), HasSubstr("缺少 EOF")) << where;
      for (const std::string& difference :
           Differences(RecordsOf(file.substr(0, lastSection) + "\n"), RecordsOf(opened.saved())))
        EXPECT_THAT(difference, testing::AnyOf(testing::StartsWith("added "),
                                               testing::StartsWith("changed SECTION HEADER: 5 FF -> ")))
            << where;
      EXPECT_TRUE(Open(opened.saved()).ok()) << where;
    }
    expectRecovered(part, where);
  }
}

TEST(Truncation, SaysWhereTheFileEnds) {
  const std::string file = DrawingOf("0 LINE\n5 20\n8 0\n10 1.0\n20 2.0");
  EXPECT_EQ(Open(file.substr(0, file.find("0\nENDSEC\n0\nEOF"))).error(),
            "图.dxf：第 25 行：文件在段“ENTITIES”中意外结束");
  EXPECT_EQ(Open(file.substr(0, file.find("2.0\n"))).error(),
            "图.dxf：第 23 行：文件在组码 20 之后意外结束，缺少它的值");
}

TEST(Truncation, OfRealDrawingsNeverLosesWhatStandsAhead) {
  for (const char* name :
       {"ascii_R12", "binary_R12", "frozen_off", "columns_R2018", "damaged_02", "plan_gbk_R2000"}) {
    const std::string file = SampleBytes(name);
    const std::size_t step = std::max<std::size_t>(1, file.size() / 60);
    for (std::size_t length = step / 2; length < file.size(); length += step) {
      const std::string part = file.substr(0, length);
      const std::string where = std::string(name) + " cut at " + std::to_string(length) + ": ";
      const Opened opened = Open(part);
      EXPECT_TRUE(opened.ok() || opened.error().starts_with("图.dxf：")) << where;
      expectRecovered(part, where);
    }
  }
}

} // namespace
