// The style of texts that the package writes.
#include "plugin/graph/TextAttribute.h"

#include "host/db/AcDbText.h"
#include "host/db/AcDbTextStyleTable.h"
#include "plugin/graph/DrawingSettings.h"
#include "tests/support/EditorFixture.h"

namespace {

class TextAttribute : public EditorFixture {
 protected:
  AcDbObjectId Style(const wchar_t* name) {
    AcDbObjectId id;
    const AcDbObjectPointer<AcDbTextStyleTable> styles(database().textStyleTableId(), AcDb::kForRead);
    styles->getAt(name, id);
    return id;
  }
  AcDbObjectId AddStyle(const wchar_t* name, double width) {
    const AcDbObjectPointer<AcDbTextStyleTable> styles(database().textStyleTableId(), AcDb::kForWrite);
    auto* style = new AcDbTextStyleTableRecord;
    style->setName(name);
    style->setXScale(width);
    AcDbObjectId id;
    EXPECT_EQ(Acad::eOk, styles->add(id, style));
    style->close();
    return id;
  }
  std::size_t StyleCount() {
    const AcDbObjectPointer<AcDbTextStyleTable> styles(database().textStyleTableId(), AcDb::kForRead);
    return styles->records().size();
  }
  AcDbText text{{1, 2, 3}, L"甲", {}, 350};
};

TEST_F(TextAttribute, IsThePackagesOwnStyleWhichIsMadeOnce) {
  ASSERT_TRUE(Style(L"QL_KOR").isNull());
  EXPECT_NE(0, ZP::SetTextAttribute(&text, 1));
  const auto id = Style(L"QL_KOR");
  ASSERT_FALSE(id.isNull());
  EXPECT_EQ(id, text.textStyle());
  const AcDbObjectPointer<AcDbTextStyleTableRecord> style(id, AcDb::kForRead);
  EXPECT_EQ(style->fileName(), L"gbenor.shx");
  EXPECT_EQ(style->bigFontFileName(), L"gbcbig.shx");
  EXPECT_EQ(style->textSize(), 0) << "texts have heights of their own";
  const auto count = StyleCount();
  AcDbText other;
  EXPECT_NE(0, ZP::SetTextAttribute(&other, 1));
  EXPECT_EQ(other.textStyle(), id);
  EXPECT_EQ(StyleCount(), count);
}

TEST_F(TextAttribute, TakesTheOwnStyleAsTheUserHasChangedIt) {
  const auto id = AddStyle(L"ql_kor", 0.7);
  EXPECT_NE(0, ZP::SetTextAttribute(&text, 1));
  EXPECT_EQ(text.textStyle(), id) << "names of styles have no case";
  EXPECT_EQ(text.widthFactor(), 0.7);
}

TEST_F(TextAttribute, IsTheCurrentStyleWhereTheSettingsSaySo) {
  ZP::SetFontType(0);
  const auto id = AddStyle(L"仿宋", 0.8);
  ZP::SetTextStyle(L"仿宋");
  EXPECT_NE(0, ZP::SetTextAttribute(&text, 1));
  EXPECT_EQ(text.textStyle(), id);
  EXPECT_EQ(text.widthFactor(), 0.8);
  EXPECT_TRUE(Style(L"QL_KOR").isNull());
}

TEST_F(TextAttribute, LeavesHeightPlaceAndText) {
  ZP::SetTextAttribute(&text, 1);
  EXPECT_EQ(text.height(), 350);
  EXPECT_TRUE(text.position().isEqualTo({1, 2, 3}));
  EXPECT_EQ(text.textString(), L"甲");
}

TEST_F(TextAttribute, IsRefusedForWhatIsNoTextOrNoKindOrNoStyle) {
  EXPECT_EQ(0, ZP::SetTextAttribute(nullptr, 1));
  for (const int kind : {0, 2, -1}) EXPECT_EQ(0, ZP::SetTextAttribute(&text, kind));
  ZP::SetFontType(0);
  ZP::SetTextStyle(L"没有");
  EXPECT_EQ(0, ZP::SetTextAttribute(&text, 1));
  EXPECT_TRUE(text.textStyle().isNull());
  EXPECT_TRUE(Style(L"QL_KOR").isNull());
  acDocManagerPtr()->closeAll();
  EXPECT_EQ(0, ZP::SetTextAttribute(&text, 1));
}

} // namespace
