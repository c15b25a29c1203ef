#include "tests/host/db/DrawingFixture.h"

#include "host/db/resbuf.h"

using ExtendedData = Drawing;

namespace {

// "code=value" of each buffer, for comparing chains.
std::vector<std::string> listed(const resbuf* chain) {
  std::vector<std::string> items;
  const std::string tags = dxf::fromResbuf(chain);
  for (DxfTagReader reader(tags);;) {
    DxfTag tag;
    if (!reader.next(tag)) break;
    items.push_back(std::to_string(tag.code) + "=" + std::string(tag.value));
  }
  return items;
}

} // namespace

TEST_F(ExtendedData, WhatWasSetIsReadBackWithAllItsKinds) {
  const auto id = addLine();
  db.registerApplication(L"QL_测试");
  const auto chain = ResbufBuilder()
                         .text(1001, L"QL_测试")
                         .text(1000, L"管径 DN20^ 换行\n完")
                         .text(1002, L"{")
                         .real(1040, 0.1)
                         .integer(1070, -5)
                         .integer(1071, 100000)
                         .point(1010, 1, 2, 3)
                         .text(1005, L"1F")
                         .text(1002, L"}")
                         .take();
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  ASSERT_EQ(line->setXData(chain.get()), Acad::eOk);
  const ResbufPtr back(line->xData(L"ql_测试"));
  ASSERT_TRUE(back);
  EXPECT_EQ(listed(back.get()), listed(chain.get()));
  EXPECT_STREQ(back->rbnext->resval.rstring, L"管径 DN20^ 换行\n完");
}

TEST_F(ExtendedData, AnUnregisteredApplicationIsRefused) {
  AcDbObjectPointer<AcDbLine> line(addLine(), AcDb::kForWrite);
  EXPECT_EQ(line->setXData(ResbufBuilder().text(1001, L"未注册").text(1000, L"值").chain()),
            Acad::eRegappIdNotFound);
  EXPECT_EQ(line->xData(), nullptr);
}

TEST_F(ExtendedData, OneApplicationIsReplacedAndTheOthersStay) {
  const auto id = addLine();
  for (const wchar_t* name : {L"甲", L"乙"}) db.registerApplication(name);
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  line->setXData(ResbufBuilder().text(1001, L"甲").text(1000, L"一").chain());
  line->setXData(ResbufBuilder().text(1001, L"乙").text(1000, L"二").chain());
  line->setXData(ResbufBuilder().text(1001, L"甲").text(1000, L"三").chain());
  const ResbufPtr all(line->xData());
  EXPECT_EQ(listed(all.get()), (std::vector<std::string>{"1001=甲", "1000=三", "1001=乙", "1000=二"}));
}

TEST_F(ExtendedData, TheNameAloneTakesTheDataAway) {
  const auto id = addLine();
  db.registerApplication(L"甲");
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  line->setXData(ResbufBuilder().text(1001, L"甲").text(1000, L"一").chain());
  EXPECT_EQ(line->setXData(ResbufBuilder().text(1001, L"甲").chain()), Acad::eOk);
  EXPECT_EQ(line->xData(), nullptr);
}

TEST_F(ExtendedData, MoreThan16KilobytesAreRefusedAndTheOldDataStays) {
  const auto id = addLine();
  db.registerApplication(L"甲");
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  line->setXData(ResbufBuilder().text(1001, L"甲").text(1000, L"旧").chain());
  ResbufBuilder large;
  large.text(1001, L"甲");
  for (int i = 0; i < 100; ++i) large.text(1000, CString(L'x', 250));
  EXPECT_EQ(line->setXData(large.chain()), Acad::eXdataSizeExceeded);
  const ResbufPtr back(line->xData());
  EXPECT_EQ(listed(back.get()), (std::vector<std::string>{"1001=甲", "1000=旧"}));
}

TEST_F(ExtendedData, AChainThatIsNoneIsRefused) {
  AcDbObjectPointer<AcDbLine> line(addLine(), AcDb::kForWrite);
  EXPECT_EQ(line->setXData(nullptr), Acad::eInvalidInput);
  EXPECT_EQ(line->setXData(ResbufBuilder().text(1000, L"无名").chain()), Acad::eInvalidInput);
  EXPECT_EQ(line->setXData(ResbufBuilder().text(1001, L"ACAD").text(1, L"不是扩展数据").chain()),
            Acad::eInvalidInput);
}

TEST_F(ExtendedData, StaysBehindFieldsThatChangeLater) {
  const auto id = addLine();
  db.registerApplication(L"甲");
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  line->setXData(ResbufBuilder().text(1001, L"甲").text(1000, L"一").chain());
  line->setColorIndex(3);
  line->setLinetypeScale(2);
  const std::string text(line->record().text());
  EXPECT_TRUE(text.ends_with("1001\n甲\n1000\n一\n")) << text;
  EXPECT_NE(text.find(" 62\n3\n"), text.npos);
  EXPECT_LT(text.find(" 62\n3\n"), text.find("AcDbLine"));
}
