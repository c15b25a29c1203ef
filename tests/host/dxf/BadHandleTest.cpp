// Handles that are used twice, that are none, or that run out.
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbLine.h"
#include "host/db/AcDbObjectPointer.h"
#include "tests/host/dxf/DrawingFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace {

using testing::HasSubstr;

std::string point(const std::string& handle) {
  return "0 POINT\n5 " + handle + "\n100 AcDbEntity\n8 0\n100 AcDbPoint\n10 1\n20 2\n30 3\n";
}

std::string trimmed(std::string text) {
  text.pop_back();
  return text;
}

// All objects have a handle, and each its own.
void expectDistinctHandles(const AcDbDatabase& database) {
  std::set<std::uint64_t> seen;
  for (const AcDbStub& stub : database.stubs()) {
    if (stub.object == &database.header()) continue;
    EXPECT_NE(stub.handle.value(), 0u);
    EXPECT_TRUE(seen.insert(stub.handle.value()).second) << stub.handle.toHex();
    EXPECT_TRUE(stub.handle < database.handseed() || stub.handle.value() >= ~std::uint64_t{0} >> 1);
  }
}

TEST(BadHandle, UsedTwiceGivesTheSecondObjectANewOne) {
  const Opened opened = Open(DrawingOf(trimmed(point("2F") + point("2f") + point("30"))));
  ASSERT_TRUE(opened.ok());
  EXPECT_THAT(opened.repairs(), HasSubstr("34/5 句柄 2f 重复，后一个已换新句柄"));
  EXPECT_EQ(EntityAt(*opened.database, 0).handle().toHex(), "2F");
  EXPECT_EQ(EntityAt(*opened.database, 2).handle().toHex(), "30");
  expectDistinctHandles(*opened.database);
  EXPECT_TRUE(Open(opened.saved()).report.repairs.empty()) << Open(opened.saved()).repairs();
}

TEST(BadHandle, ThatIsNoneIsReplaced) {
  for (const char* handle : {"0", "", "xyz", "-5", "12345678901234567", "1 2"}) {
    const Opened opened = Open(DrawingOf(trimmed(point(handle))));
    ASSERT_TRUE(opened.ok()) << handle;
    EXPECT_THAT(opened.repairs(), HasSubstr("18/5 “" + std::string(handle) + "”不是有效的句柄，已换新句柄"));
    expectDistinctHandles(*opened.database);
    const Opened again = Open(opened.saved());
    EXPECT_TRUE(again.report.repairs.empty()) << again.repairs();
    EXPECT_EQ(EntityAt(*again.database, 0).handle(), EntityAt(*opened.database, 0).handle());
  }
}

TEST(BadHandle, TheLargestOfAllIsKeptAndNewOnesStayBelow) {
  const Opened opened =
      Open(DrawingOf(trimmed(point("FFFFFFFFFFFFFFFF") + point("7FFFFFFFFFFFFFFF") + point("A"))));
  ASSERT_TRUE(opened.ok());
  EXPECT_EQ(EntityAt(*opened.database, 0).handle().toHex(), "FFFFFFFFFFFFFFFF");
  expectDistinctHandles(*opened.database);
  EXPECT_TRUE(Open(opened.saved()).ok());
}

TEST(BadHandle, MissingFromR2000OnIsGiven) {
  const Opened opened = Open(DrawingOf("0 POINT\n100 AcDbEntity\n8 0\n100 AcDbPoint\n10 1\n20 2\n30 3"));
  EXPECT_THAT(opened.repairs(), HasSubstr("1 个对象没有句柄，已补上"));
  EXPECT_THAT(opened.saved(),
              HasSubstr("POINT\n  5\n" + EntityAt(*opened.database, 0).handle().toHex() + "\n"));
}

TEST(BadHandle, MissingInR12StaysMissing) {
  const std::string file = DrawingOf("0 POINT\n8 0\n10 1\n20 2\n30 3", "AC1009");
  const Opened opened = Open(file);
  EXPECT_EQ(opened.repairs(), "");
  EXPECT_EQ(opened.saved(), file);
}

TEST(BadHandle, TwiceInR12IsReplacedInTheRecordToo) {
  const std::string point = "0 POINT\n5 A1\n8 0\n10 1\n20 2\n30 3\n";
  const Opened opened = Open(DrawingOf(point + point.substr(0, point.size() - 1), "AC1009"));
  EXPECT_THAT(opened.repairs(), HasSubstr("句柄 A1 重复"));
  const Opened again = Open(opened.saved());
  EXPECT_EQ(again.repairs(), "");
  EXPECT_EQ(EntityAt(*again.database, 1).handle(), EntityAt(*opened.database, 1).handle());
}

// A new object must not take the number of something that is kept without being understood.
TEST(BadHandle, OfKeptRecordsIsNotGivenAgain) {
  const Opened opened =
      Open(Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1015\n9 $HANDSEED\n5 1\n0 ENDSEC\n0 SECTION\n"
                "2 ENTITIES\n0 ENDSEC\n0 SECTION\n2 OTHER\n0 THING\n5 ABC\n0 ENDSEC\n0 EOF"));
  EXPECT_GT(opened.database->handseed().value(), 0xABCu);
}

TEST(Seed, IsRaisedAboveWhatIsAddedAndStaysWhenThatIsTakenBack) {
  const std::string sample = SampleBytes("text");
  const Opened opened = Open(sample);
  AcDbDatabase& database = *opened.database;
  database.undo().beginCommand(L"LINE");
  AcDbObjectId id;
  for (int i = 0; i < 70000; ++i) {
    AcDbObjectPointer<AcDbBlockTableRecord> model(database.modelSpaceId(), AcDb::kForWrite);
    auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0));
    ASSERT_EQ(model->appendAcDbEntity(id, line), Acad::eOk);
    line->close();
  }
  database.undo().endCommand();
  const Opened again = Open(opened.saved());
  EXPECT_GT(AcDbHandle::fromHex(again.database->header().text("$HANDSEED")->ToUtf8()), id.handle());
  ASSERT_EQ(database.undo().undo(), Acad::eOk);
  EXPECT_TRUE(opened.saved() == sample);
}

} // namespace
