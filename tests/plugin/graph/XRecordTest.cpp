// Data by key in the extension dictionaries of a drawing's objects.
#include "plugin/graph/XRecord.h"

#include <gtest/gtest.h>

#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbXrecord.h"
#include "tests/support/WorkingDrawing.h"

namespace {

class XRecord : public testing::Test {
 protected:
  static ResbufPtr Text(const wchar_t* text) {
    ResbufBuilder chain;
    chain.text(1, text);
    return chain.take();
  }
  // The text of a record of one group, "(none)" where there is no record.
  static CString Read(const AcDbObjectId& id, const wchar_t* key) {
    resbuf* chain = nullptr;
    if (!ZP::GetXRecord(id, key, chain)) return L"(none)";
    const ResbufPtr owner(chain);
    return chain->resval.rstring;
  }

  WorkingDrawing drawing;
  const AcDbObjectId line = drawing.AppendLine();
};

} // namespace

TEST_F(XRecord, IsReadAsItWasFiled) {
  ASSERT_NE(0, ZP::SetXRecord(line, L"记录", Text(L"值").get()));
  EXPECT_EQ(Read(line, L"记录"), L"值");
  EXPECT_EQ(Read(line, L"其他"), L"(none)");
}

TEST_F(XRecord, EveryKindOfGroupComesBack) {
  ResbufBuilder chain;
  chain.text(1, L"a\nb").point(10, 1, 2, 3).real(40, 0.1).integer(70, -5).integer(90, 100000);
  chain.integer(160, 1LL << 40).binary(310, {3, new char[3]{0, 1, 2}});
  ASSERT_NE(0, ZP::SetXRecord(line, L"k", chain.chain()));
  resbuf* read = nullptr;
  ASSERT_NE(0, ZP::GetXRecord(line, L"K", read)) << "names compare without case";
  const ResbufPtr owner(read);
  EXPECT_EQ(dxf::fromResbuf(read), dxf::fromResbuf(chain.chain()));
}

TEST_F(XRecord, StandsBesideOthersAndIsReplacedByItsKey) {
  ASSERT_NE(0, ZP::SetXRecord(line, L"a", Text(L"1").get()));
  ASSERT_NE(0, ZP::SetXRecord(line, L"b", Text(L"2").get()));
  ASSERT_NE(0, ZP::SetXRecord(line, L"a", Text(L"3").get()));
  EXPECT_EQ(Read(line, L"a"), L"3");
  EXPECT_EQ(Read(line, L"b"), L"2");
}

TEST_F(XRecord, StandsOnTableRecordsToo) {
  ASSERT_NE(0, ZP::SetXRecord(drawing.Layer(L"0"), L"a", Text(L"1").get()));
  EXPECT_EQ(Read(drawing.Layer(L"0"), L"a"), L"1");
}

TEST_F(XRecord, AMissLeavesTheChainAlone) {
  resbuf other{};
  resbuf* chain = &other;
  EXPECT_EQ(0, ZP::GetXRecord(line, L"a", chain));
  EXPECT_EQ(0, ZP::GetXRecord(AcDbObjectId(), L"a", chain));
  EXPECT_EQ(0, ZP::GetXRecord(line, L"", chain));
  EXPECT_EQ(chain, &other);
}

TEST_F(XRecord, ThatIsEmptyErasedOrOpenForWriteIsNotRead) {
  ASSERT_NE(0, ZP::SetXRecord(line, L"a", Text(L"1").get()));
  AcDbObjectId record;
  AcDbObjectPointer<AcDbDictionary>(line.object()->extensionDictionary(), AcDb::kForRead)
      ->getAt(L"a", record);
  {
    const AcDbObjectPointer<AcDbXrecord> writer(record, AcDb::kForWrite);
    EXPECT_EQ(Read(line, L"a"), L"(none)");
    EXPECT_EQ(0, ZP::SetXRecord(line, L"a", Text(L"2").get()));
  }
  EXPECT_EQ(Read(line, L"a"), L"1");
  AcDbObjectPointer<AcDbXrecord>(record, AcDb::kForWrite)->erase();
  EXPECT_EQ(Read(line, L"a"), L"(none)");
  ASSERT_NE(0, ZP::SetXRecord(line, L"a", Text(L"2").get()));
  EXPECT_EQ(Read(line, L"a"), L"2");
  AcDbObjectPointer<AcDbEntity>(line, AcDb::kForWrite)->erase();
  EXPECT_EQ(Read(line, L"a"), L"(none)");
}

TEST_F(XRecord, WhatCanNotBeFiledChangesNothing) {
  ResbufBuilder wrong;
  wrong.text(1, L"x").text(1000, L"extended data");
  EXPECT_EQ(0, ZP::SetXRecord(line, L"a", wrong.chain()));
  EXPECT_EQ(0, ZP::SetXRecord(line, L"a", nullptr));
  EXPECT_EQ(0, ZP::SetXRecord(line, L"", Text(L"1").get()));
  EXPECT_EQ(0, ZP::SetXRecord(AcDbObjectId(), L"a", Text(L"1").get()));
  EXPECT_TRUE(line.object()->extensionDictionary().isNull());
  ASSERT_NE(0, ZP::SetXRecord(line, L"a", Text(L"1").get()));
  EXPECT_EQ(0, ZP::SetXRecord(line, L"a", wrong.chain()));
  EXPECT_EQ(Read(line, L"a"), L"1");
}
