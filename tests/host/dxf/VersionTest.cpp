// Drawings saved in another version: each of the real ones in each version, and what the versions lack.
#include "host/dxf/FileVersion.h"
#include "tests/host/dxf/DrawingFiles.h"
#include "tests/host/dxf/TagCompare.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbLayerTable.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Converted {
  std::string bytes;
  std::vector<std::string> losses;
};

Converted savedAs(const Opened& opened, std::string_view version) {
  Converted result;
  std::vector<CString> losses;
  result.bytes = dxf::WriteDrawingBytes(*opened.database, &losses, {std::string(version), {}});
  for (const CString& loss : losses) result.losses.push_back(loss.ToUtf8());
  return result;
}

// Entities of the two spaces by type; what stays in every version is in both counts.
std::map<std::string, int> entityTypes(const AcDbDatabase& database) {
  std::map<std::string, int> types;
  for (const AcDbObjectId& space : {database.modelSpaceId(), database.paperSpaceId()})
    for (const AcDbObjectId& id : AcDbBlockTableRecord::cast(space.object())->entities())
      ++types[AcDbEntity::cast(id.object())->dxfName().ToUtf8()];
  return types;
}

// Entities have subclass markers exactly from R13 on.
void expectSound(const Opened& opened, std::string_view version) {
  EXPECT_EQ(opened.database->form().version, version);
  const bool old = version == dxf::kR12;
  for (const AcDbStub& stub : opened.database->stubs()) {
    if (!AcDbEntity::cast(stub.object) || stub.object->isImplicit()) continue;
    const auto tags = stub.object->record().tags();
    const bool hasMarker =
        std::any_of(tags.begin(), tags.end(), [](const DxfTag& tag) { return tag.code == 100; });
    EXPECT_EQ(hasMarker, !old) << stub.object->record().text();
  }
}

// Not so a layer of one of the drawings, whose name no code page explains.
bool isText(const CString& name) {
  const std::wstring_view text = name.View();
  return std::none_of(text.begin(), text.end(), [](wchar_t c) { return c >= 0xDC80 && c <= 0xDCFF; });
}

class InVersion : public testing::TestWithParam<std::tuple<std::string, dxf::FileVersion>> {};

TEST_P(InVersion, OpensAgainWithoutRepairsAndWithItsEntities) {
  const auto& [name, version] = GetParam();
  const Opened opened = Open(SampleBytes(name));
  ASSERT_TRUE(opened.ok()) << opened.error();
  const std::string before = opened.saved();
  const Converted converted = savedAs(opened, version.mark);
  EXPECT_TRUE(opened.saved() == before) << "the drawing itself stays as it was";
  const Opened again = Open(converted.bytes);
  ASSERT_TRUE(again.ok()) << again.error();
  EXPECT_LE(again.report.repairs.size(), opened.report.repairs.size()) << again.repairs();
  EXPECT_THAT(Differences(RecordsOf(converted.bytes), RecordsOf(again.saved())), IsEmpty());
  if (opened.database->form().version != version.mark) expectSound(again, version.mark);
  if (version.mark != dxf::kR12 && converted.losses.empty()) {
    EXPECT_EQ(entityTypes(*again.database), entityTypes(*opened.database));
  }
  for (const AcDbObjectId& id : opened.database->tableOf("LAYER")->records()) {
    const CString layer = AcDbLayerTableRecord::cast(id.object())->name();
    if (!isText(layer)) continue;
    EXPECT_TRUE(again.database->tableOf("LAYER")->has(layer)) << layer.ToUtf8();
  }
}

std::string caseName(const testing::TestParamInfo<InVersion::ParamType>& info) {
  return std::get<0>(info.param) + "_" + CString(std::get<1>(info.param).name).ToUtf8();
}

std::vector<std::string> soundSamples() {
  std::vector<std::string> names = SampleNames();
  // Its text cannot be decoded, and its broken structure is what other tests are about.
  std::erase_if(names, [](const std::string& name) { return name.starts_with("damaged"); });
  return names;
}

INSTANTIATE_TEST_SUITE_P(Drawings, InVersion,
                         testing::Combine(testing::ValuesIn(soundSamples()),
                                          testing::ValuesIn(dxf::writableVersions().begin(),
                                                            dxf::writableVersions().end())),
                         caseName);

const char* const kPolyline =
    "0 LWPOLYLINE\n5 A1\n330 1F\n100 AcDbEntity\n8 PIPE\n62 3\n370 35\n100 AcDbPolyline\n90 2\n"
    "70 1\n43 2.5\n38 7.0\n10 1.0\n20 2.0\n42 0.5\n10 3.0\n20 4.0\n1001 HVAC\n1000 a";

std::string withApplication(const std::string& entities, const char* version) {
  return Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 " + std::string(version) +
              "\n9 $INSUNITS\n70 4\n9 $LTSCALE\n40 2.0\n0 ENDSEC\n0 SECTION\n2 TABLES\n0 TABLE\n2 APPID\n5 "
              "9\n330 0\n"
              "100 AcDbSymbolTable\n70 1\n0 APPID\n5 10\n330 9\n100 AcDbSymbolTableRecord\n"
              "100 AcDbRegAppTableRecord\n2 HVAC\n70 0\n0 ENDTAB\n0 ENDSEC\n0 SECTION\n2 ENTITIES") +
         Tags(entities) + Tags("0 ENDSEC\n0 EOF");
}

TEST(Version, R12GetsAPolylineWithVertices) {
  const Converted converted = savedAs(Open(withApplication(kPolyline, "AC1015")), dxf::kR12);
  EXPECT_THAT(
      converted.bytes,
      HasSubstr(
          "  0\nPOLYLINE\n  5\nA1\n  8\nPIPE\n 62\n3\n 66\n1\n 10\n0.0\n 20\n0.0\n 30\n7.0\n 40\n2.5\n"
          " 41\n2.5\n 70\n1\n1001\nHVAC\n1000\na\n  0\nVERTEX\n  8\nPIPE\n 62\n3\n 10\n1.0\n 20\n2.0\n"
          " 30\n7.0\n 42\n0.5\n  0\nVERTEX\n  8\nPIPE\n 62\n3\n 10\n3.0\n 20\n4.0\n 30\n7.0\n  0\nSEQEND"));
  EXPECT_THAT(converted.bytes, Not(HasSubstr("\n100\n")));
  EXPECT_THAT(converted.losses,
              ElementsAre("R12 格式不能保存：文件头变量（1 处）", "R12 格式不能保存：线宽（1 处）"));
}

TEST(Version, R12HasNoPlaceForTheRecordsOfEntities) {
  const std::string drawing =
      withApplication("0 LINE\n5 A1\n102 {ACAD_XDICTIONARY\n360 A2\n102 }\n330 1F\n100 AcDbEntity\n8 0\n"
                      "100 AcDbLine\n10 0\n20 0\n30 0\n11 1\n21 0\n31 0\n0 ENDSEC\n0 SECTION\n2 OBJECTS\n"
                      "0 DICTIONARY\n5 C\n330 0\n100 AcDbDictionary\n"
                      "0 DICTIONARY\n5 A2\n330 A1\n100 AcDbDictionary\n3 局部阻力\n360 A3\n"
                      "0 XRECORD\n5 A3\n330 A2\n100 AcDbXrecord\n280 1\n90 7",
                      "AC1015");
  EXPECT_THAT(savedAs(Open(drawing), dxf::kR12).losses,
              testing::Contains("R12 格式不能保存：扩展记录（1 处）"));
  EXPECT_THAT(savedAs(Open(drawing), "AC1032").losses, IsEmpty());
}

TEST(Version, R12GetsTheLinesOfATextWithFormatting) {
  const Opened opened = Open(withApplication(
      "0 MTEXT\n5 A1\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbMText\n10 100\n20 200\n30 0\n40 10\n71 1\n"
      "1 {\\fArial|b0;DN25}\\P\\H5x;\\S1/2; a\\~b\\\\c\n7 Standard",
      "AC1015"));
  const Converted converted = savedAs(opened, dxf::kR12);
  EXPECT_THAT(converted.bytes, HasSubstr(" 10\n100.0\n 20\n190.0\n 30\n0.0\n 40\n10.0\n  1\nDN25\n"));
  EXPECT_THAT(converted.bytes, HasSubstr("  1\n1/2 a b\\c\n"));
  EXPECT_THAT(converted.losses,
              testing::Contains("R12 格式不能保存：多行文字改为单行文字，格式不保留（1 处）"));
}

TEST(Version, R12GetsCurvesAsPolylines) {
  const Opened opened =
      Open(withApplication("0 ELLIPSE\n5 A1\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbEllipse\n10 0\n20 0\n30 "
                           "0\n11 10\n21 0\n31 0\n40 0.5\n"
                           "41 0.0\n42 3.14159265358979\n"
                           "0 SPLINE\n5 A2\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbSpline\n70 8\n71 2\n72 "
                           "6\n73 3\n74 0\n40 0\n40 0\n40 0\n"
                           "40 1\n40 1\n40 1\n10 0\n20 0\n30 0\n10 5\n20 10\n30 0\n10 10\n20 0\n30 0",
                           "AC1015"));
  const Opened again = Open(savedAs(opened, dxf::kR12).bytes);
  const auto vertexAt = [&](std::size_t entity, std::size_t index) {
    const auto& vertices = AcDbEntity::cast(EntityAt(*again.database, entity).object())->subEntities();
    double x = 0;
    double y = 0;
    for (const DxfTag& tag : vertices[index].object()->record().tags()) {
      if (tag.code == 10) x = *dxf::toReal(tag.value);
      if (tag.code == 20) y = *dxf::toReal(tag.value);
    }
    return std::pair(x, y);
  };
  // The top of the half ellipse, and the middle of the parabola.
  EXPECT_NEAR(vertexAt(0, 24).first, 0, 1e-9);
  EXPECT_NEAR(vertexAt(0, 24).second, 5, 1e-9);
  EXPECT_NEAR(vertexAt(1, 6).first, 5, 1e-9);
  EXPECT_NEAR(vertexAt(1, 6).second, 5, 1e-9);
}

TEST(Version, WhatR12HasNoWordsForIsLeftOutAndTold) {
  const Opened opened = Open(
      withApplication("0 HATCH\n5 A1\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbHatch\n2 SOLID\n70 1", "AC1015"));
  const Converted converted = savedAs(opened, dxf::kR12);
  EXPECT_THAT(converted.bytes, Not(HasSubstr("HATCH")));
  EXPECT_THAT(converted.losses, testing::Contains("R12 格式不能保存：实体 HATCH（1 处）"));
}

TEST(Version, TrueColourAndTransparencyAreTakenFromR2000) {
  const std::string file = withApplication("0 POINT\n5 A1\n330 1F\n100 AcDbEntity\n8 0\n62 1\n420 "
                                           "16711680\n440 33554559\n100 AcDbPoint\n10 1\n20 2\n30 3",
                                           "AC1027");
  const Converted converted = savedAs(Open(file), dxf::kR2000);
  EXPECT_THAT(converted.bytes, Not(HasSubstr("420\n")));
  EXPECT_THAT(converted.bytes, HasSubstr(" 62\n1\n100\nAcDbPoint"));
  EXPECT_THAT(converted.losses,
              ElementsAre("R2000 格式不能保存：真彩色（1 处）", "R2000 格式不能保存：透明度（1 处）"));
  EXPECT_THAT(savedAs(Open(file), dxf::kR2004).losses, IsEmpty());
}

TEST(Version, OfTextIsTheCodePageBeforeR2007AndUtf8FromThere) {
  const std::string point = "0 POINT\n5 A1\n330 1F\n100 AcDbEntity\n8 管线À\n100 AcDbPoint\n10 1\n20 2\n30 3";
  const Converted old = savedAs(Open(withApplication(point, "AC1027")), dxf::kR2004);
  EXPECT_THAT(old.bytes, HasSubstr("\n8\n\xB9\xDC\xCF\xDF\\U+00C0\n"));
  EXPECT_THAT(old.bytes, HasSubstr("  3\nANSI_936\n"));
  const Converted newer = savedAs(Open(old.bytes), dxf::kR2007);
  EXPECT_THAT(newer.bytes, HasSubstr("\n8\n管线\\U+00C0\n"));
}

TEST(Version, InUtf8HasNoBytesThatAreNone) {
  const std::string file = DrawingOf("0 POINT\n8 0\n1001 HVAC\n1000 a\xD6", "AC1009");
  const Converted converted = savedAs(Open(file), dxf::kR2018);
  EXPECT_THAT(converted.bytes, HasSubstr("a\uFFFD\n"));
  EXPECT_THAT(converted.losses, ElementsAre("R2018 格式不能保存：无法识别的字节（1 处）"));
  EXPECT_THAT(savedAs(Open(file), dxf::kR2000).bytes, HasSubstr("a\xD6\n"));
  // Outside of records too.
  EXPECT_THAT(savedAs(Open("999\nb\xD6\n" + file), dxf::kR2018).bytes, testing::StartsWith("999\nb\uFFFD\n"));
}

TEST(Version, ADrawingOfR12GetsHandlesOwnersMarkersAndLayouts) {
  const Opened opened =
      Open(DrawingOf("0 TEXT\n8 0\n10 1.0\n20 2.0\n30 0.0\n40 2.5\n1 abc\n72 1\n11 3.0\n21 2.0\n31 "
                     "0.0\n73 2\n0 POLYLINE\n8 0\n66 1\n70 8\n0 VERTEX\n8 0\n10 1.0\n20 2.0\n30 3.0\n"
                     "70 32\n0 SEQEND\n8 0",
                     "AC1009"));
  const Converted converted = savedAs(opened, dxf::kR2018);
  EXPECT_THAT(converted.losses, IsEmpty());
  EXPECT_THAT(converted.bytes,
              testing::ContainsRegex("  0\nTEXT\n  5\n[0-9A-F]+\n330\n[0-9A-F]+\n100\nAcDbEntity\n"
                                     "  8\n0\n100\nAcDbText\n 10\n1.0\n"));
  EXPECT_THAT(converted.bytes, HasSubstr(" 31\n0.0\n100\nAcDbText\n 73\n2\n  0\nPOLYLINE"));
  EXPECT_THAT(converted.bytes, HasSubstr("100\nAcDb3dPolyline\n"));
  EXPECT_THAT(converted.bytes, HasSubstr("100\nAcDbVertex\n100\nAcDb3dPolylineVertex\n"));
  const Opened again = Open(converted.bytes);
  EXPECT_EQ(again.repairs(), "");
  AcDbObjectId layouts;
  const auto* root = AcDbDictionary::cast(again.database->namedObjectsDictionaryId().object());
  ASSERT_EQ(root->getAt(L"ACAD_LAYOUT", layouts), Acad::eOk);
  AcDbObjectId model;
  EXPECT_EQ(AcDbDictionary::cast(layouts.object())->getAt(L"Model", model), Acad::eOk);
  EXPECT_EQ(model.object()->record().type(), "LAYOUT");
  // Nothing is added a second time.
  EXPECT_EQ(savedAs(again, dxf::kR2018).bytes, converted.bytes);
}

// Damaged drawings of R12: what was written in another version is read and written again as it stands.
TEST(Version, WhatStandsWhereItDoesNotBelongInR12ComesOutOnceAndForAll) {
  const std::string tail = "\n0 LINE\n8 0\n10 1.0\n20 2.0\n11 3.0\n21 4.0";
  for (const std::string& entities : {
           "0 DIMSTYLE\n2 A\n70 0" + tail,                      // an entry of a table among entities
           "0 TABLE\n2 LAYER\n70 1\n0 LAYER\n2 A\n70 0" + tail, // a whole table
           "0 XRECORD\n1 x" + tail,                             // an object
           "0 POINT\n10 1.0\n20 2.0\n1001 ACAD\n1000 x\n8 A\n62 3" + tail, // behind extended data
           "0 POINT\n8 0\xC0\x1F\n10 1.0\n20 2.0" + tail, // half a character ahead of a control character
           "0 POINT\r \n8 0\n10 1.0\n20 2.0" + tail,      // a line end within a type
       }) {
    std::string file = DrawingOf(entities, "AC1009");
    file.insert(file.find("0\nENDSEC"), "9\n$DWGCODEPAGE\n3\nANSI_936\n");
    const Opened opened = Open(file);
    ASSERT_TRUE(opened.ok()) << opened.error();
    const std::string first = savedAs(opened, dxf::kR2000).bytes;
    EXPECT_EQ(Open(first).saved(), first) << entities;
  }
}

// Sections that a file lacks come in between, and what belongs to nothing stays behind what it stood behind.
TEST(Version, WhatStandsBetweenSectionsStaysThere) {
  for (const char* version : {"AC1009", "AC1015"}) {
    const std::string file =
        Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 " + std::string(version) +
             "\n0 ENDSEC\n0 SECTION\n2 ENTITIES\n0 LINE\n5 A1\n8 0\n10 1.0\n20 2.0\n11 3.0\n"
             "21 4.0\n0 ENDSEC\n0 STRAY\n1 x\n0 EOF");
    const std::string first = savedAs(Open(file), dxf::kR2000).bytes;
    EXPECT_GT(first.find("STRAY\n"), first.find("LINE\n")) << version;
    EXPECT_EQ(Open(first).saved(), first) << version;
  }
}

TEST(Version, ChosenOnceIsUsedForEverySaveAfter) {
  const Opened opened = Open(withApplication(kPolyline, "AC1027"));
  opened.database->form().saveVersion = dxf::kR2000;
  EXPECT_THAT(opened.saved(), HasSubstr("$ACADVER\n  1\nAC1015\n"));
}

TEST(Version, OfLossesIsKnownBeforeAnythingIsWritten) {
  const Opened opened = Open(withApplication(kPolyline, "AC1015"));
  EXPECT_EQ(dxf::LossesInVersion(*opened.database, std::string(dxf::kR12)).size(), 2u);
  EXPECT_THAT(dxf::LossesInVersion(*opened.database, "AC1015"), IsEmpty());
}

} // namespace
