#include "plugin/graph/DrawingSettings.h"

#include <gtest/gtest.h>

#include <limits>

#include "host/db/DxfRecordEditor.h"
#include "plugin/graph/Xdata.h"
#include "tests/support/WorkingDrawing.h"

namespace {

struct NumberSetting {
  const char* name;
  double (*get)();
  bool (*set)(double);
  double preset;
};

const NumberSetting kNumbers[] = {
    {"OutDwgScale", ZP::GetOutDwgScale, ZP::SetOutDwgScale, 100},
    {"DrawingScale", ZP::GetDrawingScale, ZP::SetDrawingScale, 1},
    {"ZwZg", ZP::GetZwZg, ZP::SetZwZg, 3.5},
    {"XwZg", ZP::GetXwZg, ZP::SetXwZg, 3},
};

class NumberSettings : public testing::TestWithParam<NumberSetting> {};

TEST_P(NumberSettings, HaveDefaultsInADrawingThatHasNone) {
  WorkingDrawing drawing;
  EXPECT_EQ(GetParam().get(), GetParam().preset);
}

TEST_P(NumberSettings, GiveBackExactlyWhatWasSet) {
  WorkingDrawing drawing;
  for (const double value : {50.0, 0.1 + 0.2, 1e-7, 1e15, 33.333333333333336}) {
    EXPECT_TRUE(GetParam().set(value));
    EXPECT_EQ(GetParam().get(), value);
  }
  for (const NumberSetting& other : kNumbers) {
    if (other.get == GetParam().get) continue;
    EXPECT_EQ(other.get(), other.preset) << other.name;
  }
}

TEST_P(NumberSettings, RefuseWhatIsNoMeasure) {
  WorkingDrawing drawing;
  ASSERT_TRUE(GetParam().set(7.5));
  for (const double value :
       {0.0, -0.0, -1.0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity()})
    EXPECT_FALSE(GetParam().set(value)) << value;
  EXPECT_EQ(GetParam().get(), 7.5);
}

TEST_P(NumberSettings, BelongToTheWorkingDrawing) {
  WorkingDrawing first;
  ASSERT_TRUE(GetParam().set(12));
  {
    WorkingDrawing second;
    EXPECT_EQ(GetParam().get(), GetParam().preset);
  }
  EXPECT_EQ(GetParam().get(), 12);
}

TEST_P(NumberSettings, HaveDefaultsAndCannotBeSetWithoutADrawing) {
  ASSERT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
  EXPECT_EQ(GetParam().get(), GetParam().preset);
  EXPECT_FALSE(GetParam().set(12));
}

TEST_P(NumberSettings, GoBackWithTheCommandThatSetThem) {
  WorkingDrawing drawing;
  drawing.Database().undo().beginCommand(L"TEST");
  ASSERT_TRUE(GetParam().set(12));
  drawing.Database().undo().endCommand();
  EXPECT_EQ(drawing.Database().undo().undo(), Acad::eOk);
  EXPECT_EQ(GetParam().get(), GetParam().preset);
}

INSTANTIATE_TEST_SUITE_P(All, NumberSettings, testing::ValuesIn(kNumbers),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(DrawingSettings, SetToWhatTheyAreLeaveTheDrawingUnmodified) {
  WorkingDrawing drawing;
  ASSERT_TRUE(ZP::SetOutDwgScale(50));
  drawing.Database().setModified(false);
  EXPECT_TRUE(ZP::SetOutDwgScale(50));
  EXPECT_FALSE(drawing.Database().isModified());
}

TEST(DrawingSettings, DamagedByOthersGiveTheDefaults) {
  WorkingDrawing drawing;
  for (const wchar_t* text : {L"", L"abc", L"-5", L"0", L"50x", L"nan", L"1e999"}) {
    ASSERT_NE(ZP::SetXdata(drawing.Layer(L"0"), L"ZP_出图比例", text), 0);
    EXPECT_EQ(ZP::GetOutDwgScale(), 100) << CString(text).ToUtf8();
  }
}

TEST(DrawingSettings, CannotBeSetWhileSomebodyReadsLayerZero) {
  WorkingDrawing drawing;
  const AcDbObjectPointer<AcDbLayerTableRecord> reader(drawing.Layer(L"0"), AcDb::kForRead);
  EXPECT_FALSE(ZP::SetOutDwgScale(50));
  EXPECT_EQ(ZP::GetOutDwgScale(), 100);
}

TEST(TextStyleSetting, IsTheDrawingsOwnUntilOneIsChosen) {
  WorkingDrawing drawing;
  EXPECT_EQ(ZP::GetTextStyle(), L"Standard");
  {
    const AcDbObjectPointer<AcDbHeader> header(drawing.Database().headerId(), AcDb::kForWrite);
    header->setVariable("$TEXTSTYLE", DxfRecordEditor::tag(7, "仿宋"));
  }
  EXPECT_EQ(ZP::GetTextStyle(), L"仿宋");
  EXPECT_TRUE(ZP::SetTextStyle(L"QL_KOR"));
  EXPECT_EQ(ZP::GetTextStyle(), L"QL_KOR");
}

TEST(TextStyleSetting, RefusesTheEmptyName) {
  WorkingDrawing drawing;
  ASSERT_TRUE(ZP::SetTextStyle(L"甲"));
  EXPECT_FALSE(ZP::SetTextStyle(L""));
  EXPECT_EQ(ZP::GetTextStyle(), L"甲");
}

TEST(FontTypeSetting, IsThePackagesOwnStyleUntilChosen) {
  WorkingDrawing drawing;
  EXPECT_EQ(ZP::GetFontType(), 1);
  EXPECT_NE(ZP::SetFontType(0), 0);
  EXPECT_EQ(ZP::GetFontType(), 0);
  EXPECT_EQ(ZP::SetFontType(2), 0);
  EXPECT_EQ(ZP::SetFontType(-1), 0);
  EXPECT_EQ(ZP::GetFontType(), 0);
  EXPECT_NE(ZP::SetFontType(1), 0);
  EXPECT_EQ(ZP::GetFontType(), 1);
}

} // namespace
