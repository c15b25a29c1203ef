// What the fields of an object do not name stays in its record where and as it stood.
#include "host/db/DxfRecordEditor.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbLine.h"
#include "host/db/AcDbXrecord.h"
#include "host/db/ExtendedData.h"
#include "host/db/resbuf.h"
#include "tests/host/dxf/DrawingFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

DxfRecord record(std::string_view lines) {
  return DxfRecord::own(Tags(lines));
}

// The tags as "code value" lines, blanks around codes and values left out.
std::string lines(const DxfRecord& record) {
  std::string text;
  for (const DxfTag& tag : record.tags())
    text += std::to_string(tag.code) + " " + std::string(dxf::trimBlanks(tag.value)) + "\n";
  return text;
}

const char* const kLine =
    "0 LINE\n5 2F\n102 {ACAD_REACTORS\n330 1A\n8 not a layer\n102 }\n330 1F\n100 AcDbEntity\n999 note\n"
    "8 管线\n48 2.0\n100 AcDbLine\n999 second note\n39 0.50\n10 1.00\n20 2\n30 +3.0\n11 4\n21 5\n31 6\n"
    "7777 unknown\n1001 HVAC\n1000 a\n8 of the data";

TEST(RecordEditor, GivesBackTheVeryRecordWhenNothingChanges) {
  const DxfRecord base = record(kLine);
  DxfRecordEditor editor(base, true);
  editor.type("LINE");
  editor.handle(5, AcDbHandle(0x2F));
  editor.handle(330, AcDbHandle(0x1F));
  editor.subclass("AcDbEntity");
  editor.name(8, L"管线");
  editor.real(48, 2.0, 1.0);
  editor.integer(62, 256, 256);
  editor.subclass("AcDbLine");
  editor.real(39, 0.5);
  editor.point(10, {1, 2, 3});
  editor.point(11, {4, 5, 6});
  editor.vector(210, {0, 0, 1}, {0, 0, 1});
  EXPECT_EQ(editor.finish().text().data(), base.text().data()); // not even a copy
}

TEST(RecordEditor, ChangesOneValueAndKeepsTheSpellingOfTheOthers) {
  DxfRecordEditor editor(record(kLine), true);
  editor.type("LINE");
  editor.subclass("AcDbLine");
  editor.point(10, {1, 2, 3.25});
  std::string expected = Tags(kLine);
  expected.replace(expected.find("30\n+3.0"), 7, " 30\n3.25");
  EXPECT_EQ(editor.finish().text(), expected);
}

TEST(RecordEditor, KeepsANamesOldSpellingUntilItIsAnotherName) {
  DxfRecordEditor editor(record("0 POINT\n8 Pipe\n6 \\U+7BA1"), false);
  editor.type("POINT");
  editor.name(8, L"PIPE");
  editor.name(6, L"管");
  EXPECT_EQ(lines(editor.finish()), "0 POINT\n8 Pipe\n6 \\U+7BA1\n");
  DxfRecordEditor other(record("0 POINT\n8 Pipe"), false);
  other.type("POINT");
  other.name(8, L"Pipes");
  EXPECT_EQ(lines(other.finish()), "0 POINT\n8 Pipes\n");
}

TEST(RecordEditor, PutsWhatIsMissingBehindTheFieldBefore) {
  DxfRecordEditor editor(record(kLine), true);
  editor.type("LINE");
  editor.subclass("AcDbEntity");
  editor.name(8, L"管线");
  editor.integer(62, 5, 256);
  editor.subclass("AcDbLine");
  editor.point(11, {4, 5, 6});
  editor.vector(210, {0, 1, 0}, {0, 0, 1});
  const std::string text = lines(editor.finish());
  EXPECT_THAT(text, testing::HasSubstr("8 管线\n62 5\n48 2.0\n100 AcDbLine\n"));
  EXPECT_THAT(text, testing::HasSubstr("31 6\n210 0.0\n220 1.0\n230 0.0\n7777 unknown\n1001 HVAC\n"));
}

TEST(RecordEditor, LeavesGroupsAloneAndPutsTheOwnerBehindThem) {
  DxfRecordEditor editor(
      record("0 LINE\n5 2F\n102 {ACAD_XDICTIONARY\n360 30\n102 }\n102 {FOREIGN\n330 1\n102 }\n"
             "100 AcDbEntity\n8 0"),
      true);
  editor.type("LINE");
  editor.handle(5, AcDbHandle(0x2F));
  editor.handle(330, AcDbHandle(0x1F));
  EXPECT_EQ(lines(editor.finish()),
            "0 LINE\n5 2F\n102 {ACAD_XDICTIONARY\n360 30\n102 }\n102 {FOREIGN\n330 1\n102 }\n"
            "330 1F\n100 AcDbEntity\n8 0\n");
}

TEST(RecordEditor, AddsReplacesAndRemovesAGroup) {
  const DxfRecord base = record("0 LINE\n5 2F\n330 1F\n100 AcDbEntity\n8 0");
  DxfRecordEditor adding(base, true);
  adding.group("{ACAD_REACTORS", DxfRecordEditor::tag(330, "AA"));
  const DxfRecord added = adding.finish();
  EXPECT_EQ(lines(added), "0 LINE\n5 2F\n102 {ACAD_REACTORS\n330 AA\n102 }\n330 1F\n100 AcDbEntity\n8 0\n");
  DxfRecordEditor replacing(added, true);
  replacing.group("{ACAD_REACTORS", DxfRecordEditor::tag(330, "BB"));
  EXPECT_THAT(lines(replacing.finish()), testing::HasSubstr("102 {ACAD_REACTORS\n330 BB\n102 }\n330 1F\n"));
  DxfRecordEditor removing(added, true);
  removing.group("{ACAD_REACTORS", "");
  EXPECT_EQ(lines(removing.finish()), lines(base));
}

TEST(RecordEditor, OfANewObjectWritesTheFieldsInTheirOrder) {
  DxfRecordEditor editor({}, true);
  editor.type("LINE");
  editor.handle(5, AcDbHandle(1));
  editor.subclass("AcDbEntity");
  editor.name(8, L"0");
  editor.subclass("AcDbLine");
  editor.point(10, {1, 2, 3});
  EXPECT_EQ(editor.finish().text(),
            "  0\nLINE\n  5\n1\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n1.0\n 20\n2.0\n 30\n3.0\n");
  DxfRecordEditor old({}, false);
  old.type("LINE");
  old.handle(5, AcDbHandle(1));
  old.subclass("AcDbEntity");
  old.name(8, L"0");
  old.subclass("AcDbLine");
  old.point(10, {1, 2, 3});
  EXPECT_EQ(lines(old.finish()), "0 LINE\n5 1\n8 0\n10 1.0\n20 2.0\n30 3.0\n");
}

TEST(RecordEditor, OfARecordWithoutMarkersAddsNone) {
  for (const bool version : {false, true}) {
    DxfRecordEditor editor(record("0 LINE\n8 0\n10 1\n20 2\n1001 X\n1000 a"), version);
    editor.type("LINE");
    editor.subclass("AcDbEntity");
    editor.name(8, L"A");
    editor.subclass("AcDbLine");
    editor.point(10, {1, 2, 0});
    EXPECT_EQ(lines(editor.finish()), "0 LINE\n8 A\n10 1\n20 2\n1001 X\n1000 a\n");
  }
}

TEST(RecordEditor, KeepsAFlatPointFlatUntilItRises) {
  DxfRecordEditor editor(record("0 LINE\n10 1\n20 2\n11 3\n21 4"), false);
  editor.type("LINE");
  editor.point(10, {1, 2, 0});
  editor.point(11, {3, 4, 5});
  EXPECT_EQ(lines(editor.finish()), "0 LINE\n10 1\n20 2\n11 3\n21 4\n31 5.0\n");
}

TEST(RecordEditor, StopsAtAnEmbeddedObject) {
  DxfRecordEditor editor(
      record("0 TEXT\n5 1\n100 AcDbEntity\n8 0\n100 AcDbText\n40 2.5\n101 Embedded Object\n40 9.0\n1 b"),
      true);
  editor.type("TEXT");
  editor.subclass("AcDbText");
  editor.real(40, 3.0);
  editor.text(1, CString(L"a"));
  EXPECT_EQ(
      lines(editor.finish()),
      "0 TEXT\n5 1\n100 AcDbEntity\n8 0\n100 AcDbText\n40 3.0\n1 a\n101 Embedded Object\n40 9.0\n1 b\n");
}

TEST(RecordEditor, ReplacesARunWhereItStood) {
  static constexpr int codes[] = {10, 20};
  DxfRecordEditor editor(record("0 LWPOLYLINE\n90 2\n10 1\n20 2\n10 3\n20 4\n210 0\n1001 X\n1010 5"), false);
  editor.type("LWPOLYLINE");
  editor.replaceRun(codes, DxfRecordEditor::realTag(10, 7) + DxfRecordEditor::realTag(20, 8));
  EXPECT_EQ(lines(editor.finish()), "0 LWPOLYLINE\n90 2\n10 7.0\n20 8.0\n210 0\n1001 X\n1010 5\n");
}

TEST(ExtendedData, IsReplacedAppendedAndRemovedByItsApplication) {
  const DxfRecord base =
      record("0 LINE\n8 0\n1001 A\n1000 1\n1001 管\n1002 {\n1000 2\n1002 }\n1001 C\n1070 3");
  const std::string two = DxfRecordEditor::tag(1000, "two");
  EXPECT_EQ(lines(dxf::withExtendedData(base, "管", two)),
            "0 LINE\n8 0\n1001 A\n1000 1\n1001 管\n1000 two\n1001 C\n1070 3\n");
  // Case does not count.
  EXPECT_EQ(lines(dxf::withExtendedData(base, "a", two)),
            "0 LINE\n8 0\n1001 a\n1000 two\n1001 管\n1002 {\n1000 2\n1002 }\n1001 C\n1070 3\n");
  EXPECT_EQ(lines(dxf::withExtendedData(base, "c", two)),
            "0 LINE\n8 0\n1001 A\n1000 1\n1001 管\n1002 {\n1000 2\n1002 }\n1001 c\n1000 two\n");
  EXPECT_EQ(lines(dxf::withExtendedData(base, "D", DxfRecordEditor::tag(1071, "4"))),
            lines(base) + "1001 D\n1071 4\n");
  EXPECT_EQ(lines(dxf::withExtendedData(base, "管", "")), "0 LINE\n8 0\n1001 A\n1000 1\n1001 C\n1070 3\n");
  EXPECT_EQ(dxf::withExtendedData(base, "missing", "").text(), base.text());
}

TEST(ExtendedData, OfARecordWhoseLastLineIsNotEndedBeginsALineOfItsOwn) {
  const DxfRecord base = DxfRecord::own("0\nLINE\n8\n0");
  EXPECT_EQ(dxf::withExtendedData(base, "A", DxfRecordEditor::tag(1070, "1")).text(),
            "0\nLINE\n8\n0\n1001\nA\n1070\n1\n");
  const DxfRecord empty = DxfRecord::own("");
  EXPECT_EQ(dxf::withExtendedData(empty, "A", DxfRecordEditor::tag(1070, "1")).text(), "1001\nA\n1070\n1\n");
}

TEST(RecordEditor, ClosesALastLineWithoutEnd) {
  const std::string text = "0\nLINE\n8\n0";
  DxfRecordEditor editor(DxfRecord::own(text), false);
  editor.type("LINE");
  editor.name(8, L"0");
  editor.integer(62, 3, 256);
  EXPECT_EQ(editor.finish().text(), "0\nLINE\n8\n0\n 62\n3\n");
}

// Group codes of an xrecord's data mean what its writer likes, handles and markers included.
TEST(Xrecord, KeepsDataOfAnyCodesInTheirOrder) {
  const std::string file = Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1012\n0 ENDSEC\n0 SECTION\n2 "
                                "ENTITIES\n0 ENDSEC\n0 SECTION\n2 OBJECTS\n"
                                "0 DICTIONARY\n5 C\n330 0\n100 AcDbDictionary\n3 DATA\n360 D\n"
                                "0 XRECORD\n5 D\n102 {ACAD_REACTORS\n330 C\n102 }\n330 C\n100 "
                                "AcDbXrecord\n280 1\n102 {NOT A GROUP\n330 C\n"
                                "100 AcDbNoMarker\n280 7\n290 1\n10 1.0\n20 2.0\n30 3.0\n160 "
                                "9007199254740993\n310 00FF\n1 管^Jb\n5 77\n"
                                "1001 APP\n1000 x\n0 ENDSEC\n0 EOF");
  const Opened opened = Open(file);
  ASSERT_EQ(opened.saved(), file);
  AcDbDictionary* root = nullptr;
  ASSERT_EQ(opened.database->getNamedObjectsDictionary(root, AcDb::kForRead), Acad::eOk);
  AcDbXrecord* found = nullptr;
  ASSERT_EQ(root->getAt(L"data", found, AcDb::kForWrite), Acad::eOk);
  root->close();
  resbuf* chain = nullptr;
  ASSERT_EQ(found->rbChain(&chain), Acad::eOk);
  const ResbufPtr owned(chain);
  std::string codes;
  for (const resbuf* rb = chain; rb; rb = rb->rbnext) codes += std::to_string(rb->restype) + " ";
  EXPECT_EQ(codes, "102 330 100 280 290 10 160 310 1 5 ");
  // Given back, the same tags in our spelling.
  ASSERT_EQ(found->setFromRbChain(*chain), Acad::eOk);
  EXPECT_EQ(lines(found->record()), lines(record("0 XRECORD\n5 D\n102 {ACAD_REACTORS\n330 C\n102 }\n330 "
                                                 "C\n100 AcDbXrecord\n280 1\n102 {NOT A GROUP\n330 C\n"
                                                 "100 AcDbNoMarker\n280 7\n290 1\n10 1.0\n20 2.0\n30 "
                                                 "3.0\n160 9007199254740993\n310 00FF\n1 管^Jb\n5 77\n"
                                                 "1001 APP\n1000 x")));
  found->close();
}

TEST(Xrecord, WithoutAHandleOrWithOneUsedTwiceGetsItsOwn) {
  const Opened opened = Open(
      Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1012\n0 ENDSEC\n0 SECTION\n2 ENTITIES\n0 ENDSEC\n0 SECTION\n"
           "2 OBJECTS\n0 DICTIONARY\n5 C\n100 AcDbDictionary\n0 XRECORD\n100 AcDbXrecord\n280 1\n1 a\n"
           "0 XRECORD\n5 C\n100 AcDbXrecord\n280 1\n1 b\n0 ENDSEC\n0 EOF"));
  EXPECT_EQ(Open(opened.saved()).repairs(), "");
}

} // namespace
