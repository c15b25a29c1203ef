// What the plug-in keeps in a drawing survives saving and reopening in every version of the format.
#include <gtest/gtest.h>

#include "host/dxf/DrawingFile.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/graph/Xdata.h"
#include "tests/support/WorkingDrawing.h"

namespace {

struct Version {
  const char* number;
  const char* codePage;
};

// A drawing with layer 0, one more, and a line on it.
std::string FileOf(const Version& version) {
  const bool markers = std::string_view(version.number) > "AC1009";
  std::string text;
  const auto tag = [&](const char* code, const std::string& value) { text += code + ("\n" + value + "\n"); };
  const auto marker = [&](const char* name) {
    if (markers) tag("100", name);
  };
  tag("0", "SECTION");
  tag("2", "HEADER");
  tag("9", "$ACADVER");
  tag("1", version.number);
  tag("9", "$DWGCODEPAGE");
  tag("3", version.codePage);
  tag("0", "ENDSEC");
  tag("0", "SECTION");
  tag("2", "TABLES");
  tag("0", "TABLE");
  tag("2", "LAYER");
  tag("70", "1");
  tag("0", "LAYER");
  tag("5", "A0");
  marker("AcDbSymbolTableRecord");
  marker("AcDbLayerTableRecord");
  tag("2", "0");
  tag("70", "0");
  tag("62", "7");
  tag("6", "CONTINUOUS");
  tag("0", "ENDTAB");
  tag("0", "ENDSEC");
  tag("0", "SECTION");
  tag("2", "ENTITIES");
  tag("0", "LINE");
  tag("5", "A1");
  marker("AcDbEntity");
  tag("8", "0");
  marker("AcDbLine");
  for (const char* code : {"10", "20", "30", "11", "21", "31"}) tag(code, "0.0");
  tag("0", "ENDSEC");
  tag("0", "EOF");
  return text;
}

std::unique_ptr<AcDbDatabase> Open(const std::string& bytes) {
  auto database = std::make_unique<AcDbDatabase>(false);
  const auto report = dxf::ReadDrawingBytes(bytes, L"test.dxf", *database);
  EXPECT_TRUE(report.ok) << report.error.ToUtf8();
  return database;
}

AcDbObjectId LineOf(AcDbDatabase& database) {
  AcDbObjectId id;
  database.getAcDbObjectId(id, false, AcDbHandle(0xA1));
  return id;
}

// The longest group 1000 in bytes, and the longest 1001.
std::pair<std::size_t, std::size_t> LongestGroups(const std::string& bytes) {
  std::size_t text = 0;
  std::size_t name = 0;
  for (std::size_t at = 0; at < bytes.size();) {
    const auto line = [&] {
      std::size_t end = bytes.find('\n', at);
      if (end == bytes.npos) end = bytes.size();
      std::string value = bytes.substr(at, end - at);
      at = end + 1;
      while (!value.empty() && value.back() == '\r') value.pop_back();
      return value;
    };
    const std::string code = line();
    const std::size_t length = line().size();
    if (std::atoi(code.c_str()) == 1000) text = std::max(text, length);
    if (std::atoi(code.c_str()) == 1001) name = std::max(name, length);
  }
  return {text, name};
}

class SavedDrawing : public testing::TestWithParam<Version> {
 protected:
  // What comes back after a save.
  std::unique_ptr<AcDbDatabase> Reopened(AcDbDatabase& database) {
    bytes = dxf::WriteDrawingBytes(database);
    return Open(bytes);
  }
  std::string bytes;
};

TEST_P(SavedDrawing, KeepsItsSettings) {
  WorkingDrawing drawing(Open(FileOf(GetParam())));
  EXPECT_EQ(ZP::GetOutDwgScale(), 100);
  ASSERT_TRUE(ZP::SetOutDwgScale(150));
  ASSERT_TRUE(ZP::SetDrawingScale(0.1 + 0.2));
  ASSERT_TRUE(ZP::SetZwZg(5));
  ASSERT_TRUE(ZP::SetXwZg(2.5));
  ASSERT_TRUE(ZP::SetTextStyle(L"仿宋_工程"));
  ASSERT_NE(ZP::SetFontType(0), 0);
  WorkingDrawing again(Reopened(drawing));
  EXPECT_EQ(ZP::GetOutDwgScale(), 150);
  EXPECT_EQ(ZP::GetDrawingScale(), 0.1 + 0.2);
  EXPECT_EQ(ZP::GetZwZg(), 5);
  EXPECT_EQ(ZP::GetXwZg(), 2.5);
  EXPECT_EQ(ZP::GetTextStyle(), L"仿宋_工程");
  EXPECT_EQ(ZP::GetFontType(), 0);
}

TEST_P(SavedDrawing, KeepsValuesOfEveryKindUnderKeysOfEveryKind) {
  const CString keys[] = {
      L"管材",          L"图层标识",          L"扣弯",
      L"风机盘管/型号", L"a key with blanks", L"一个对旧版本图形来说过长而又不能截断的名称"};
  CString longText;
  for (int i = 0; i < 60; ++i) longText += L"供水管×φ";
  const CString values[] = {L"镀锌钢管", L"", L"two\nlines ^ \\U+4E2D", L"\U0001F600é한", longText};
  for (const CString& value : values) {
    const auto database = Open(FileOf(GetParam()));
    for (const CString& key : keys) ASSERT_NE(ZP::SetXdata(LineOf(*database), key, value), 0) << key.ToUtf8();
    const auto again = Reopened(*database);
    for (const CString& key : keys) {
      CString read = L"(none)";
      EXPECT_NE(ZP::GetXdata(LineOf(*again), key, read), 0) << key.ToUtf8();
      EXPECT_EQ(read, value) << key.ToUtf8();
    }
    const auto [text, name] = LongestGroups(bytes);
    EXPECT_LE(text, 255u);
    EXPECT_LE(name, std::string_view(GetParam().number) < "AC1015" ? 31u : 255u);
    for (const CString& key : {keys[0], keys[3]}) { // each filed under a registered application
      const AcDbObjectPointer<AcDbRegAppTable> applications(again->regAppTableId(), AcDb::kForRead);
      EXPECT_TRUE(applications->has(key == keys[0] ? key : CString(L"ZP$0A91789C039FBABF")));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Versions, SavedDrawing,
                         testing::Values(Version{"AC1009", "ANSI_936"}, Version{"AC1009", "ANSI_1252"},
                                         Version{"AC1012", "ANSI_936"}, Version{"AC1014", "ANSI_936"},
                                         Version{"AC1015", "ANSI_936"}, Version{"AC1015", "ANSI_1252"},
                                         Version{"AC1018", "ANSI_936"}, Version{"AC1021", "ANSI_936"},
                                         Version{"AC1024", "ANSI_1252"}, Version{"AC1027", "ANSI_936"},
                                         Version{"AC1032", "ANSI_936"}),
                         [](const auto& test) {
                           return std::string(test.param.number) + "_" + test.param.codePage;
                         });

} // namespace
