// Files that are large in one direction: nothing may take more than a time in proportion.
#include "host/db/AcDbBlockTable.h"
#include "tests/host/dxf/DrawingFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

constexpr int kMany = 100000;

std::string repeated(const std::string& lines, int count) {
  const std::string tags = Tags(lines);
  std::string text;
  text.reserve(tags.size() * static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) text += tags;
  return text;
}

std::string section(const char* name, const std::string& content) {
  return Tags("0 SECTION\n2 " + std::string(name)) + content + Tags("0 ENDSEC");
}

const std::string kEnd = Tags("0 SECTION\n2 ENTITIES\n0 ENDSEC\n0 EOF");

void expectSame(const std::string& file) {
  const Opened opened = Open(file);
  ASSERT_TRUE(opened.ok()) << opened.error();
  EXPECT_TRUE(opened.saved() == file);
}

TEST(HugeFile, OfOneLongLineIsKept) {
  const std::string line(200u << 20, 'x');
  expectSame(DrawingOf("0 MTEXT\n8 0\n1 " + line, "AC1009"));
}

TEST(HugeFile, OfALongLineInsteadOfACodeIsRefused) {
  EXPECT_EQ(Open(std::string(200u << 20, 'x')).error(),
            "图.dxf：第 1 行：应为组码（整数），实际为“" + std::string(40, 'x') + "…”");
}

TEST(HugeFile, OfTagsWithoutARecordIsRefused) {
  EXPECT_EQ(Open(repeated("1 a", 3000000)).error(), "图.dxf：不是 DXF 图形文件：没有任何段（SECTION）");
  expectSame(section("HEADER", repeated("9 $A\n40 1.0", 1000000)) + kEnd);
}

TEST(HugeFile, OfOneRecordIsKept) {
  expectSame(DrawingOf(
      "0 LWPOLYLINE\n8 0\n90 3\n70 0\n10 1\n20 1\n102 {A\n102 {A\n102 {A\n102 }\n1001 X\n1002 {\n1002 {",
      "AC1009"));
  expectSame(section("ENTITIES", Tags("0 LWPOLYLINE\n8 0") + repeated("102 {NEST", 1000000)) + Tags("0 EOF"));
  expectSame(section("ENTITIES", Tags("0 LINE\n8 0\n1001 X") + repeated("1002 {", 1000000)) + Tags("0 EOF"));
}

TEST(HugeFile, OfManySubEntitiesIsKept) {
  expectSame(section("ENTITIES", Tags("0 POLYLINE\n8 0\n66 1") +
                                     repeated("0 VERTEX\n8 0\n10 1\n20 1", 1000000) + Tags("0 SEQEND\n8 0")) +
             Tags("0 EOF"));
}

TEST(HugeFile, OfManySectionsIsKept) {
  expectSame(repeated("0 SECTION\n2 ENTITIES\n0 POINT\n8 0\n10 1\n20 1\n0 ENDSEC", kMany) + Tags("0 EOF"));
  std::string file;
  for (int i = 0; i < kMany; ++i) file += section(("S" + std::to_string(i)).c_str(), "");
  expectSame(file + kEnd);
}

TEST(HugeFile, OfManyTablesOpens) {
  const Opened opened = Open(section("TABLES", repeated("0 TABLE\n2 LAYER\n70 0\n0 ENDTAB", kMany)) + kEnd);
  EXPECT_TRUE(opened.ok());
  EXPECT_TRUE(Open(opened.saved()).report.repairs.empty());
}

TEST(HugeFile, OfManyStraysIsKept) {
  expectSame(section("TABLES", repeated("0 ENDTAB", kMany)) + kEnd);
  expectSame(
      section("TABLES", Tags("0 TABLE\n2 LAYER\n70 0") + repeated("0 X\n2 A", kMany) + Tags("0 ENDTAB")) +
      kEnd);
  expectSame(repeated("0 LINE\n8 0", kMany) + kEnd);
}

TEST(HugeFile, OfManyEntriesOfOneNameIsKept) {
  expectSame(section("TABLES", Tags("0 TABLE\n2 LAYER\n70 0") +
                                   repeated("0 LAYER\n2 A\n70 0\n62 1\n6 CONTINUOUS", kMany) +
                                   Tags("0 ENDTAB")) +
             kEnd);
  expectSame(section("BLOCKS", repeated("0 BLOCK\n8 0\n2 A\n70 0\n10 0\n20 0\n3 A\n0 ENDBLK\n8 0", kMany)) +
             kEnd);
}

TEST(HugeFile, OfManyBlocksIsKept) {
  std::string blocks;
  for (int i = 0; i < kMany; ++i)
    blocks += Tags("0 BLOCK\n8 0\n2 B" + std::to_string(i) + "\n70 0\n10 0\n20 0\n3 B\n0 INSERT\n8 0\n2 B" +
                   std::to_string(i + 1) + "\n10 0\n20 0\n0 ENDBLK\n8 0");
  expectSame(section("BLOCKS", blocks + Tags("0 BLOCK\n8 0\n2 B" + std::to_string(kMany) +
                                             "\n70 0\n10 0\n20 0\n3 B\n0 ENDBLK\n8 0")) +
             kEnd);
  // The same as one ring.
  const Opened ring =
      Open(section("BLOCKS", blocks + Tags("0 BLOCK\n8 0\n2 B" + std::to_string(kMany) +
                                           "\n70 0\n10 0\n20 0\n3 B\n0 INSERT\n8 0\n2 B0\n10 0\n20 0\n"
                                           "0 ENDBLK\n8 0")) +
           kEnd);
  EXPECT_EQ(ring.report.repairs.size(), 501u);
  EXPECT_EQ(ring.report.repairs.back().what, L"另有 99501 处未逐一列出");
}

TEST(HugeFile, OfManyFaultsListsTheFirstAndCountsTheRest) {
  const Opened opened =
      Open(section("ENTITIES", repeated("0 POINT\n8 0\n10 nan\n20 1", kMany)) + Tags("0 EOF"));
  ASSERT_TRUE(opened.ok());
  EXPECT_EQ(opened.report.repairs.size(), 501u);
  EXPECT_EQ(opened.report.repairs[499].line, 4u + 8 * 499 + 6);
  EXPECT_EQ(opened.report.repairs.back().what, L"另有 99500 处未逐一列出");
  EXPECT_EQ(opened.saved().find("nan"), std::string::npos);
}

TEST(HugeFile, OfManyBrokenLinesIsRecovered) {
  const Opened opened =
      Open(section("ENTITIES", repeated("0 POINT\n8 0\nbroken x\n20 1", kMany)) + Tags("0 EOF"), true);
  ASSERT_TRUE(opened.ok());
  EXPECT_EQ(opened.report.repairs.size(), 501u);
  EXPECT_EQ(AcDbBlockTableRecord::cast(opened.database->modelSpaceId().object())->entities().size(),
            static_cast<std::size_t>(kMany));
}

} // namespace
