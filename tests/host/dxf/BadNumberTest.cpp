// Coordinates that are no numbers: mended, told with line and group, and never written again.
#include "host/db/AcDbLine.h"
#include "tests/host/dxf/DrawingFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;

class BadNumber : public testing::TestWithParam<const char*> {};

TEST_P(BadNumber, InAKnownEntityIsMended) {
  const Opened opened =
      Open(DrawingOf("0 LINE\n5 20\n8 0\n10 " + std::string(GetParam()) + "\n20 2.0\n11 3.0\n21 4.0"));
  ASSERT_TRUE(opened.ok()) << opened.error();
  EXPECT_THAT(opened.repairs(), HasSubstr("22/10 “" + std::string(GetParam()) + "”不是有限的数，已改为 0.0"));
  const auto* line = AcDbLine::cast(EntityAt(*opened.database, 0).object());
  ASSERT_TRUE(line);
  EXPECT_EQ(line->startPoint(), AcGePoint3d(0, 2, 0));
  EXPECT_EQ(line->endPoint(), AcGePoint3d(3, 4, 0));
  EXPECT_THAT(opened.saved(), testing::Not(HasSubstr("\n" + std::string(GetParam()) + "\n")));
}

TEST_P(BadNumber, InAnUnknownEntityAndInExtendedDataIsMended) {
  const std::string value = GetParam();
  const Opened opened = Open(DrawingOf("0 MYSTERY\n5 20\n8 0\n40 " + value + "\n1 " + value +
                                       "\n1001 HVAC\n1000 " + value + "\n1040 " + value));
  ASSERT_TRUE(opened.ok()) << opened.error();
  EXPECT_THAT(opened.repairs(), HasSubstr("22/40 "));
  EXPECT_THAT(opened.repairs(), HasSubstr("30/1040 "));
  // As texts they may stay.
  EXPECT_THAT(EntityAt(*opened.database, 0).object()->record().text(),
              HasSubstr(" 40\n0.0\n  1\n" + value + "\n1001\nHVAC\n1000\n" + value + "\n1040\n0.0\n"));
}

TEST_P(BadNumber, InHeaderTableDictionaryAndForeignSectionIsMended) {
  const std::string value = GetParam();
  const Opened opened = Open(Tags(
      "0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1009\n9 $EXTMIN\n10 " + value +
      "\n20 1.0\n0 ENDSEC\n0 SECTION\n2 TABLES\n0 TABLE\n2 LTYPE\n70 1\n0 LTYPE\n2 A\n70 0\n40 " + value +
      "\n0 ENDTAB\n0 ENDSEC\n0 SECTION\n2 ENTITIES\n0 ENDSEC\n0 SECTION\n2 OBJECTS\n0 XRECORD\n" +
      "5 9\n100 AcDbXrecord\n40 " + value + "\n0 ENDSEC\n0 SECTION\n2 OTHER\n0 A\n40 1.5\n0 B\n40 " + value +
      "\n0 C\n40 2.5\n0 ENDSEC\n0 EOF"));
  ASSERT_TRUE(opened.ok()) << opened.error();
  const std::string saved = opened.saved();
  EXPECT_THAT(saved, testing::Not(HasSubstr("\n" + value + "\n")));
  EXPECT_THAT(saved, HasSubstr("0\nA\n40\n1.5\n  0\nB\n 40\n0.0\n"));
  EXPECT_EQ(opened.report.repairs.size(), 4u) << opened.repairs();
}

INSTANTIATE_TEST_SUITE_P(Spellings, BadNumber,
                         testing::Values("nan", "NaN", "-nan", "inf", "-inf", "Infinity", "1.#QNAN",
                                         "1.#QNAN0", "-1.#IND00", "1.#INF", "1e999", "-1e400", "zehn", "0x10",
                                         "1,5", "1.2.3", "--1", "1e", ".", "-", "1.0 m", "1d5"));

TEST(GoodNumber, InAnySpellingStaysAsItIs) {
  for (const char* value : {"1", "-1", "+1", "1.", ".5", "-.5", "1e5", "1E+5", "1.5e-7", "1e-400", "  2.50  ",
                            "0", "-0.0", "1e308", "00012.500"}) {
    const std::string file =
        DrawingOf("0 LINE\n5 20\n8 0\n10 " + std::string(value) + "\n20 0\n11 1\n21 1", "AC1009");
    const Opened opened = Open(file);
    EXPECT_EQ(opened.saved(), file) << value;
  }
}

TEST(BadNumber, OfWholeNumbersIsTakenAsTheDefaultAndKept) {
  const Opened opened =
      Open(DrawingOf("0 LINE\n5 20\n8 0\n62 99999999999999999999\n370 77777\n10 0\n20 0\n11 1\n21 1\n"
                     "0 LINE\n5 21\n8 0\n62 -9223372036854775808\n60 x\n10 0\n20 0\n11 1\n21 1"));
  ASSERT_TRUE(opened.ok()) << opened.error();
  EXPECT_THAT(opened.repairs(), HasSubstr("22/62 “99999999999999999999”不是整数，按 256 处理"));
  EXPECT_THAT(opened.repairs(), HasSubstr("24/370 77777 超出范围 -3 至 211，按 -1 处理"));
  EXPECT_THAT(opened.repairs(), HasSubstr("40/62 "));
  EXPECT_THAT(opened.repairs(), HasSubstr("42/60 “x”不是整数，按 0 处理"));
  for (const std::size_t index : {0, 1})
    EXPECT_EQ(AcDbEntity::cast(EntityAt(*opened.database, index).object())->colorIndex(), 256);
  EXPECT_THAT(opened.saved(), HasSubstr("\n99999999999999999999\n"));
}

} // namespace
