// Records that are missing, doubled or out of place: the drawing opens, a repair names the line, and what was
// there is still there.
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbTables.h"
#include "tests/host/dxf/DrawingFiles.h"
#include "tests/host/dxf/TagCompare.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;

const std::string kHeader = "0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1009\n0 ENDSEC\n";
const std::string kEnd = "0 SECTION\n2 ENTITIES\n0 POINT\n8 0\n10 1\n20 2\n30 3\n0 ENDSEC\n0 EOF";

struct Case {
  const char* name;
  std::string file;
  const char* repair;                   // that must be told
  std::vector<std::string> differences; // of what is saved
};

void PrintTo(const Case& row, std::ostream* out) {
  *out << row.name;
}

class BadStructure : public testing::TestWithParam<Case> {};

TEST_P(BadStructure, IsToldAndNothingIsLost) {
  const std::string file = Tags(GetParam().file);
  const Opened opened = Open(file);
  ASSERT_TRUE(opened.ok()) << opened.error();
  EXPECT_THAT(opened.repairs(), HasSubstr(GetParam().repair));
  const std::string saved = opened.saved();
  EXPECT_THAT(Differences(RecordsOf(file), RecordsOf(saved)),
              testing::ElementsAreArray(GetParam().differences));
  EXPECT_EQ(Open(saved).saved(), saved);
}

const std::string kLayer = "0 LAYER\n2 A\n70 0\n62 1\n6 CONTINUOUS\n";
const std::string kBlockA =
    "0 BLOCK\n8 0\n2 A\n70 0\n10 0\n20 0\n30 0\n3 A\n0 LINE\n8 0\n10 0\n20 0\n11 1\n21 1\n";
const std::string kInsertA =
    "0 INSERT\n8 0\n66 1\n2 A\n10 0\n20 0\n30 0\n0 ATTRIB\n8 0\n10 0\n20 0\n40 1\n1 a\n2 T\n";

INSTANTIATE_TEST_SUITE_P(
    Cases, BadStructure,
    testing::Values(
        Case{"MissingEndOfSection",
             kHeader + "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n" + kLayer + "0 ENDTAB\n" + kEnd,
             "34/0 段“TABLES”缺少 ENDSEC，保存时补上",
             {"added ENDSEC"}},
        Case{"MissingEndOfHeader",
             "0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1009\n" + kEnd,
             "10/0 段“HEADER”缺少 ENDSEC，保存时补上",
             {"added ENDSEC"}},
        Case{"MissingEndOfTable",
             kHeader + "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n" + kLayer + "0 ENDSEC\n" + kEnd,
             "32/0 表“LAYER”缺少 ENDTAB，保存时补上",
             {"added ENDTAB"}},
        Case{"MissingEndOfTableAheadOfAnother",
             kHeader + "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n" + kLayer +
                 "0 TABLE\n2 VIEW\n70 0\n0 ENDTAB\n0 ENDSEC\n" + kEnd,
             "32/0 表“LAYER”缺少 ENDTAB，保存时补上",
             {"added ENDTAB"}},
        Case{"MissingEndOfBlock",
             kHeader + "0 SECTION\n2 BLOCKS\n" + kBlockA + "0 ENDSEC\n" + kEnd,
             "15/0 块“A”缺少 ENDBLK，保存时补上",
             {"added ENDBLK 18"}},
        Case{"MissingEndOfBlockAheadOfAnother",
             kHeader + "0 SECTION\n2 BLOCKS\n" + kBlockA +
                 "0 BLOCK\n8 0\n2 B\n70 0\n10 0\n20 0\n30 0\n3 B\n" + "0 ENDBLK\n8 0\n0 ENDSEC\n" + kEnd,
             "15/0 块“A”缺少 ENDBLK，保存时补上",
             {"added ENDBLK 1B"}},
        Case{"MissingEndOfAttributes",
             kHeader + "0 SECTION\n2 BLOCKS\n" + kBlockA +
                 "0 ENDBLK\n8 0\n0 ENDSEC\n0 SECTION\n2 ENTITIES\n" + kInsertA +
                 "0 POINT\n8 0\n10 1\n20 2\n30 3\n0 ENDSEC\n0 EOF",
             "“INSERT”的从属实体之后缺少 SEQEND",
             {}},
        Case{"MissingEnd",
             kHeader + "0 SECTION\n2 ENTITIES\n0 ENDSEC",
             "文件末尾缺少 EOF，保存时补上",
             {"added EOF"}},
        Case{"SecondEndOfTable",
             kHeader + "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n" + kLayer +
                 "0 ENDTAB\n0 ENDTAB\n0 ENDSEC\n" + kEnd,
             "34/0 记录“ENDTAB”不属于任何已知的表，原样保留",
             {}},
        Case{"SecondEndOfBlock",
             kHeader + "0 SECTION\n2 BLOCKS\n" + kBlockA + "0 ENDBLK\n8 0\n0 ENDBLK\n8 0\n0 ENDSEC\n" + kEnd,
             "多余的 ENDBLK，原样保留",
             {}},
        Case{"EndOfBlockAheadOfAll",
             kHeader + "0 SECTION\n2 BLOCKS\n0 ENDBLK\n8 0\n" + kBlockA + "0 ENDBLK\n8 0\n0 ENDSEC\n" + kEnd,
             "16/0 多余的 ENDBLK，原样保留",
             {}},
        Case{"SecondEndOfSection",
             kHeader + "0 ENDSEC\n" + kEnd,
             "12/0 记录“ENDSEC”不在任何段内，原样保留",
             {}},
        Case{"RecordBetweenSections",
             kHeader + "0 LINE\n8 0\n" + kEnd,
             "12/0 记录“LINE”不在任何段内，原样保留",
             {}},
        Case{"RecordAheadOfSections",
             "0 LINE\n8 0\n" + kHeader + kEnd,
             "2/0 记录“LINE”不在任何段内，原样保留",
             {}},
        Case{"UnknownTable",
             kHeader + "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n" + kLayer +
                 "0 ENDTAB\n0 TABLE\n2 ZEBRA\n70 1\n0 STRIPE\n2 A\n0 ENDTAB\n0 ENDSEC\n" + kEnd,
             "34/0 记录“TABLE”不属于任何已知的表，原样保留",
             {}},
        Case{"UnknownTableAheadOfAll",
             kHeader +
                 "0 SECTION\n2 TABLES\n0 TABLE\n2 ZEBRA\n70 1\n0 STRIPE\n2 A\n0 ENDTAB\n0 TABLE\n2 LAYER\n70 "
                 "1\n" +
                 kLayer + "0 ENDTAB\n0 ENDSEC\n" + kEnd,
             "16/0 记录“TABLE”不属于任何已知的表，原样保留",
             {}},
        Case{"ForeignRecordInATable",
             kHeader + "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n0 STRIPE\n2 X\n" + kLayer +
                 "0 STRIPE\n2 Y\n0 ENDTAB\n0 ENDSEC\n" + kEnd,
             "22/0 表“LAYER”中有不属于它的记录，原样保留",
             {}},
        Case{
            "UnknownSection", kHeader + "0 SECTION\n2 ZEBRA\n70 1\n0 STRIPE\n2 A\n0 ENDSEC\n" + kEnd, "", {}},
        Case{"SecondHeader",
             kHeader + "0 SECTION\n2 HEADER\n9 $LTSCALE\n40 2.0\n0 ENDSEC\n" + kEnd,
             "12/0 段“HEADER”重复出现",
             {}},
        Case{"SecondEntities",
             kHeader + "0 SECTION\n2 ENTITIES\n0 POINT\n8 0\n10 7\n20 2\n30 3\n0 ENDSEC\n" + kEnd,
             "28/0 段“ENTITIES”重复出现",
             {}},
        Case{"TablesBehindEntities",
             kHeader +
                 "0 SECTION\n2 ENTITIES\n0 POINT\n8 A\n10 1\n20 2\n30 3\n0 ENDSEC\n0 SECTION\n2 TABLES\n" +
                 "0 TABLE\n2 LAYER\n70 1\n" + kLayer + "0 ENDTAB\n0 ENDSEC\n0 EOF",
             "",
             {}},
        Case{"NoHeader", kEnd, "", {}}),
    [](const auto& row) { return row.param.name; });

TEST(BadStructure, OfTablesBehindEntitiesIsNone) {
  const Opened opened =
      Open(Tags("0 SECTION\n2 ENTITIES\n0 POINT\n8 a\n6 dash\n10 1\n20 2\n30 3\n0 ENDSEC\n0 SECTION\n"
                "2 TABLES\n0 TABLE\n2 LTYPE\n70 1\n0 LTYPE\n2 DASH\n70 0\n3 \n72 65\n73 0\n40 0\n"
                "0 ENDTAB\n0 TABLE\n2 LAYER\n70 1\n" +
                kLayer + "0 ENDTAB\n0 ENDSEC\n0 EOF"));
  EXPECT_EQ(opened.repairs(), "");
  const auto* entity = AcDbEntity::cast(EntityAt(*opened.database, 0).object());
  EXPECT_EQ(entity->layer(), L"A");
  EXPECT_EQ(AcDbLayerTableRecord::cast(entity->layerId().object())->color().colorIndex(), 1);
}

// Entries of a second table of a kind join the first, and so move.
TEST(BadStructure, OfASecondTableKeepsItsEntries) {
  const Opened opened = Open(
      Tags(kHeader + "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n" + kLayer +
           "0 ENDTAB\n0 TABLE\n2 LAYER\n70 1\n0 LAYER\n2 B\n70 0\n62 2\n6 CONTINUOUS\n0 ENDTAB\n0 ENDSEC\n" +
           kEnd));
  EXPECT_THAT(opened.repairs(), HasSubstr("34/0 表“LAYER”重复，表项并入前一个"));
  const Opened again = Open(opened.saved());
  EXPECT_EQ(again.repairs(), "");
  AcDbObjectId id;
  EXPECT_EQ(again.database->tableOf("LAYER")->getAt(L"a", id), Acad::eOk);
  EXPECT_EQ(again.database->tableOf("LAYER")->getAt(L"b", id), Acad::eOk);
}

TEST(BadStructure, OfASecondBlocksSectionKeepsItsBlocks) {
  const Opened opened =
      Open(Tags(kHeader + "0 SECTION\n2 BLOCKS\n" + kBlockA + "0 ENDBLK\n8 0\n0 ENDSEC\n" +
                "0 SECTION\n2 BLOCKS\n0 BLOCK\n8 0\n2 B\n70 0\n10 0\n20 0\n30 0\n3 B\n0 ENDBLK\n8 0\n" +
                "0 ENDSEC\n" + kEnd));
  EXPECT_THAT(opened.repairs(), HasSubstr("段“BLOCKS”重复出现"));
  const Opened again = Open(opened.saved());
  EXPECT_TRUE(again.database->tableOf("BLOCK_RECORD")->has(L"A"));
  EXPECT_TRUE(again.database->tableOf("BLOCK_RECORD")->has(L"B"));
}

// An entry in the wrong table goes to the right one, whatever its name is there.
TEST(BadStructure, OfAnEntryInAForeignTableIsMended) {
  const Opened opened = Open(Tags(
      "0 SECTION\n2 TABLES\n0 TABLE\n2 BLOCK_RECORD\n70 1\n0 LAYER\n2 A\n70 0\n62 3\n6 CONTINUOUS\n0 ENDTAB\n"
      "0 ENDSEC\n0 SECTION\n2 BLOCKS\n" +
      kBlockA + "0 ENDBLK\n8 0\n0 ENDSEC\n" + kEnd));
  EXPECT_THAT(opened.repairs(), HasSubstr("12/0 表“BLOCK_RECORD”中有别的表的表项，已并入所属的表"));
  EXPECT_TRUE(opened.database->tableOf("LAYER")->has(L"A"));
  EXPECT_TRUE(Open(opened.saved()).database->tableOf("LAYER")->has(L"A"));
}

TEST(BadStructure, OfEntitiesOutsideBlocksPutsThemIntoModelSpace) {
  const Opened opened = Open(Tags(kHeader + "0 SECTION\n2 BLOCKS\n0 LINE\n8 0\n10 0\n20 0\n11 1\n21 1\n" +
                                  kBlockA + "0 ENDBLK\n8 0\n0 ENDSEC\n" + kEnd));
  EXPECT_THAT(opened.repairs(), HasSubstr("16/0 不在任何块内的实体，已移入模型空间"));
  const Opened again = Open(opened.saved());
  EXPECT_EQ(again.repairs(), "");
  EXPECT_EQ(AcDbBlockTableRecord::cast(again.database->modelSpaceId().object())->entities().size(), 2u);
}

TEST(BadStructure, OfBlocksThatContainThemselvesIsTold) {
  const auto block = [](const std::string& name, const std::string& inner) {
    return "0 BLOCK\n8 0\n2 " + name + "\n70 0\n10 0\n20 0\n30 0\n3 " + name + "\n0 INSERT\n8 0\n2 " + inner +
           "\n10 0\n20 0\n30 0\n0 ENDBLK\n8 0\n";
  };
  const std::string file = Tags("0 SECTION\n2 BLOCKS\n" + block("SELF", "self") + block("A", "B") +
                                block("B", "C") + block("C", "A") + block("LEAF", "C") + "0 ENDSEC\n" + kEnd);
  const Opened opened = Open(file);
  ASSERT_TRUE(opened.ok());
  for (const char* name : {"SELF", "A", "B", "C"})
    EXPECT_THAT(opened.repairs(), HasSubstr("块“" + std::string(name) + "”直接或间接包含自身，显示时不展开"));
  EXPECT_THAT(opened.repairs(), testing::Not(HasSubstr("LEAF")));
  EXPECT_EQ(opened.report.repairs.size(), 4u) << opened.repairs();
  EXPECT_EQ(opened.report.repairs.front().line, 21u);
  EXPECT_EQ(opened.saved(), file);
}

TEST(BadStructure, OfAnInsertionOfNothingIsTold) {
  const std::string file = DrawingOf("0 INSERT\n8 0\n2 NOWHERE\n10 0\n20 0\n30 0", "AC1009");
  const Opened opened = Open(file);
  EXPECT_THAT(opened.repairs(), HasSubstr("20/2 块“NOWHERE”未定义"));
  EXPECT_EQ(opened.saved(), file);
}

TEST(BadStructure, OfLayerNamesIsToldAndTheyAreKept) {
  for (const char* name : {"", "a/b", "a*b", "a|b", "a=b", "<x>", "a`b"}) {
    const std::string file =
        Tags(kHeader + "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n0 LAYER\n2 " + name +
             "\n70 0\n62 1\n6 CONTINUOUS\n0 ENDTAB\n0 ENDSEC\n0 SECTION\n2 ENTITIES\n0 POINT\n8 " + name +
             "\n10 1\n20 2\n30 3\n0 ENDSEC\n0 EOF");
    const Opened opened = Open(file);
    EXPECT_THAT(opened.repairs(),
                HasSubstr("22/0 图层名“" + std::string(name) + "”含禁用字符、为空或过长，保留原样"));
    EXPECT_EQ(opened.saved(), file) << name;
  }
}

TEST(BadStructure, OfOneNameForTwoKeepsBothAndTheFirstCounts) {
  const std::string file = Tags(kHeader + "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 2\n" + kLayer +
                                "0 LAYER\n2 a\n70 0\n62 2\n6 CONTINUOUS\n0 ENDTAB\n0 ENDSEC\n" + kEnd);
  const Opened opened = Open(file);
  EXPECT_THAT(opened.repairs(), HasSubstr("32/0 表项“a”重名，保留但按名称只用第一个"));
  AcDbObjectId id;
  ASSERT_EQ(opened.database->tableOf("LAYER")->getAt(L"A", id), Acad::eOk);
  EXPECT_EQ(AcDbLayerTableRecord::cast(id.object())->color().colorIndex(), 1);
  EXPECT_EQ(opened.saved(), file);
}

// Types that mean something elsewhere are unknown entities and objects where they don't belong.
TEST(BadStructure, OfRecordsInTheWrongSectionKeepsThem) {
  for (const char* type : {"BLOCK", "ENDBLK", "TABLE", "ENDTAB", "LAYER", "DICTIONARY", "XRECORD", "CLASS"}) {
    const std::string entities = DrawingOf("0 " + std::string(type) + "\n8 0\n2 A\n10 1.0", "AC1009");
    const Opened opened = Open(entities);
    ASSERT_TRUE(opened.ok()) << type;
    EXPECT_EQ(opened.saved(), entities);
  }
  for (const char* type : {"LINE", "INSERT", "LAYER", "BLOCK", "VPORT", "VERTEX"}) {
    const std::string objects = Tags(kHeader + "0 SECTION\n2 ENTITIES\n0 ENDSEC\n0 SECTION\n2 OBJECTS\n0 " +
                                     std::string(type) + "\n8 0\n2 A\n10 1.0\n0 ENDSEC\n0 EOF");
    const Opened opened = Open(objects);
    ASSERT_TRUE(opened.ok()) << type;
    EXPECT_EQ(opened.saved(), objects);
  }
}

} // namespace
