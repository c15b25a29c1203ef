// Every drawing is opened and saved again, and nothing is lost: most come back byte for byte, the others with
// what the table says.
#include "host/dxf/BinaryDxf.h"
#include "tests/host/dxf/DrawingFiles.h"
#include "tests/host/dxf/TagCompare.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace {

using testing::ElementsAreArray;

struct Normalisation {
  const char* reason;
  std::vector<std::string> differences;
};

const std::map<std::string, Normalisation>& normalisations() {
  static const std::map<std::string, Normalisation> table{
      {"binary_R12", {"binary drawings are saved as text: the same tags in another form", {}}},
      {"damaged_01", {"a file ends with EOF, and this one doesn't", {"added EOF"}}},
      {"damaged_02",
       {"three block records and their ENDTAB stand in no table: the table's head is put ahead of them, and "
        "the seed above its handle",
        {"changed SECTION HEADER: 5 27B -> 27C;", "added TABLE BLOCK_RECORD"}}},
      {"sheet",
       {"from R2000 on every drawing has the standard entries; their handles need a higher seed",
        {"changed SECTION HEADER: 5 FFFF -> 10005;", "added LTYPE ByBlock", "added LTYPE ByLayer",
         "added STYLE Standard", "added DIMSTYLE Standard", "added TABLE VIEW", "added ENDTAB",
         "added TABLE UCS", "added ENDTAB"}}},
      {"plan_gbk_R2000",
       {"a layer has a linetype that no table defines",
        {"changed SECTION HEADER: 5 48C -> 48D;", "added LTYPE HIDDEN"}}},
  };
  return table;
}

class RoundTrip : public testing::TestWithParam<std::string> {};

TEST_P(RoundTrip, ComesBackByteForByteExceptForTheListedReasons) {
  const std::string original = SampleBytes(GetParam());
  const Opened opened = Open(original);
  ASSERT_TRUE(opened.ok()) << opened.error();
  const std::string saved = opened.saved();
  const auto listed = normalisations().find(GetParam());
  if (listed == normalisations().end()) {
    EXPECT_TRUE(saved == original) << testing::PrintToString(
        Differences(RecordsOf(original), RecordsOf(saved)));
    return;
  }
  const std::string text = dxf::isBinary(original) ? dxf::textFromBinary(original).text : original;
  EXPECT_NE(saved, original) << "needs no row in the table";
  EXPECT_THAT(Differences(RecordsOf(text), RecordsOf(saved)), ElementsAreArray(listed->second.differences))
      << listed->second.reason;
}

TEST_P(RoundTrip, TheSavedFileIsSavedAsItIs) {
  const std::string saved = Open(SampleBytes(GetParam())).saved();
  const Opened again = Open(saved);
  ASSERT_TRUE(again.ok()) << again.error();
  EXPECT_TRUE(again.saved() == saved)
      << testing::PrintToString(Differences(RecordsOf(saved), RecordsOf(again.saved())));
}

// The longer way, by the same rules.
TEST_P(RoundTrip, RecoveringAFileThatIsWholeIsThatFile) {
  EXPECT_TRUE(Open(SampleBytes(GetParam()), true).saved() == Open(SampleBytes(GetParam())).saved());
}

INSTANTIATE_TEST_SUITE_P(Drawings, RoundTrip, testing::ValuesIn(SampleNames()),
                         [](const auto& sample) { return sample.param; });

TEST(RoundTrip, EveryRowOfTheTableIsADrawing) {
  const auto names = SampleNames();
  EXPECT_EQ(names.size(), 32u);
  for (const auto& [name, row] : normalisations()) EXPECT_THAT(names, testing::Contains(name)) << row.reason;
}

// Comments may stand anywhere, and are kept there.
TEST(RoundTrip, KeepsComments) {
  const std::string file = Tags(
      "999 ahead of everything\n0 SECTION\n999 in a section's head\n2 HEADER\n999 ahead of the variables\n"
      "9 $ACADVER\n999 between a variable and its value\n1 AC1015\n999 behind a value\n"
      "9 $HANDSEED\n5 FFFF\n0 ENDSEC\n999 between sections\n"
      "0 SECTION\n2 TABLES\n999 ahead of the tables\n0 TABLE\n2 LAYER\n5 2\n330 0\n100 AcDbSymbolTable\n70 "
      "1\n999 in a table's head\n"
      "0 LAYER\n5 10\n999 in an entry\n2 0\n70 0\n62 7\n6 Continuous\n0 ENDTAB\n999 behind a table\n0 "
      "ENDSEC\n"
      "0 SECTION\n2 ENTITIES\n999 ahead of the entities\n0 POINT\n5 20\n999 a\n100 AcDbEntity\n8 0\n999 b\n"
      "100 AcDbPoint\n10 1\n20 2\n30 3\n999 behind an entity\n0 ENDSEC\n0 EOF\n999 behind the end");
  const Opened opened = Open(file);
  ASSERT_TRUE(opened.ok()) << opened.error();
  for (const std::string& difference : Differences(RecordsOf(file), RecordsOf(opened.saved())))
    EXPECT_THAT(difference, testing::AnyOf(testing::StartsWith("added "),
                                           "changed SECTION HEADER: 5 FFFF -> 10014;")); // standard entries
}

TEST(RoundTrip, KeepsSectionsItDoesNotKnow) {
  const std::string file = Tags(
      "0 SECTION\n2 HEADER\n0 ENDSEC\n0 SECTION\n2 ACDSDATA\n70 2\n71 3\n0 ACDSSCHEMA\n90 0\n"
      "1 AcDb_Thumbnail_Schema\n0 ACDSRECORD\n90 1\n310 00FF\n0 ENDSEC\n0 SECTION\n2 ENTITIES\n0 ENDSEC\n"
      "0 SECTION\n2 THUMBNAILIMAGE\n90 3\n310 010203\n0 ENDSEC\n0 EOF");
  EXPECT_EQ(Open(file).saved(), file);
}

TEST(RoundTrip, KeepsHowGroupCodesArePadded) {
  const std::string file =
      "0\nSECTION\n  2\nENTITIES\n 0\nPOINT\n\t8\n0\n 10\n 1.50\n   20  \n2.\n    0\nENDSEC\n0\nEOF\n";
  EXPECT_EQ(Open(file).saved(), file);
}

} // namespace
