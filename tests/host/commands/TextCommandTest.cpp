#include "host/db/AcDbText.h"
#include "host/db/AcDbTextStyleTable.h"
#include "tests/host/commands/CommandFixture.h"

#include <numbers>

namespace {

class TextCommand : public CommandFixture {
 protected:
  void addStyle(const wchar_t* name, double height, double widthFactor) {
    AcDbObjectPointer<AcDbTextStyleTable> styles(database().textStyleTableId(), AcDb::kForWrite);
    auto* style = new AcDbTextStyleTableRecord;
    style->setName(name);
    style->setTextSize(height);
    style->setXScale(widthFactor);
    ASSERT_EQ(Acad::eOk, styles->add(style));
    style->close();
  }
};

} // namespace

TEST_F(TextCommand, LinesStandBelowEachOther) {
  run(L"TEXT", {L"10,10", L"3", L"", L"供水 立管", L"DN25", L""});
  EXPECT_EQ(2u, entityCount());
  const auto* last = only<AcDbText>();
  EXPECT_EQ(L"DN25", last->textString());
  EXPECT_EQ(3.0, last->height());
  EXPECT_TRUE(last->position().isEqualTo({10, 5, 0}));
}

TEST_F(TextCommand, TurnedLinesStandBelowEachOtherInTheirOwnDirection) {
  run(L"TEXT", {L"0,0", L"3", L"90", L"一", L"二", L""});
  EXPECT_NEAR(std::numbers::pi / 2, only<AcDbText>()->rotation(), 1e-12);
  EXPECT_TRUE(only<AcDbText>()->position().isEqualTo({5, 0, 0}));
}

TEST_F(TextCommand, TheHeightIsTheDefaultOfTheNextText) {
  run(L"TEXT", {L"0,0", L"7", L"", L"一", L""});
  run(L"TEXT", {L"0,0", L"", L"", L"二", L""});
  EXPECT_EQ(7.0, only<AcDbText>()->height());
}

TEST_F(TextCommand, AStyleMayFixHeightAndWidth) {
  addStyle(L"仿宋", 5, 0.7);
  run(L"TEXT", {L"S", L"没有", L"仿宋", L"0,0", L"", L"风机盘管", L""});
  const auto* text = only<AcDbText>();
  ASSERT_NE(nullptr, text);
  EXPECT_EQ(5.0, text->height());
  EXPECT_EQ(0.7, text->widthFactor());
  EXPECT_EQ(1u, frontEnd.refusals.size());
  EXPECT_GE(reason().Find(L"没有文字样式"), 0);
}

TEST_F(TextCommand, NoLineNoText) {
  run(L"TEXT", {L"0,0", L"7", L"", L""});
  EXPECT_EQ(0u, entityCount());
}
