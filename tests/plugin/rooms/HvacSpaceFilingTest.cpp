// Rooms in drawing files.
#include <filesystem>
#include <fstream>

#include "ZpPaths.h"
#include "host/db/Audit.h"
#include "host/dxf/DrawingFile.h"
#include "tests/plugin/rooms/RoomFixture.h"

namespace {

class HvacSpaceFiling : public RoomFixture {
 protected:
  static std::unique_ptr<AcDbDatabase> Open(const std::string& bytes) {
    auto opened = std::make_unique<AcDbDatabase>(false);
    const auto report = dxf::ReadDrawingBytes(bytes, L"rooms.dxf", *opened);
    EXPECT_TRUE(report.ok) << report.error.ToUtf8();
    return opened;
  }
  static AcDbObjectId SameIn(AcDbDatabase& other, const AcDbObjectId& id) {
    AcDbObjectId same;
    other.getAcDbObjectId(same, false, id.handle());
    return same;
  }
  static std::string Plain(std::string bytes) {
    std::erase(bytes, '\r');
    return bytes;
  }
  // A drawing whose only entity has these groups behind the common ones.
  static std::unique_ptr<AcDbDatabase> OpenRoom(const std::string& groups) {
    return Open(
        "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1027\n9\n$HANDSEED\n5\nFFFF\n0\nENDSEC\n"
        "0\nSECTION\n2\nENTITIES\n0\nVKHVAC_SPACE\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nVkDbHvacSpace\n" +
        groups + "0\nENDSEC\n0\nEOF\n");
  }
  static VkDbHvacSpace* RoomIn(AcDbDatabase& database) {
    AcDbObjectId id;
    database.getAcDbObjectId(id, false, AcDbHandle(0xA1));
    return VkDbHvacSpace::cast(id.object());
  }
};

} // namespace

TEST_F(HvacSpaceFiling, ARoomComesBackAsItWas) {
  auto* room = NewRoom({0.1, 0.2, 0.3});
  room->SetName(L"会议室 ^ \U00020000 二\n行");
  room->transformBy(AcGeMatrix3d::rotation(0.7, AcGeVector3d(0.1, 0.2, 1)));
  const auto id = add(room);
  const CTQRoom record = Record();
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  const std::string saved = dxf::WriteDrawingBytes(database());
  const auto again = Open(saved);
  const auto* read = VkDbHvacSpace::cast(SameIn(*again, id).object());
  ASSERT_TRUE(read);
  EXPECT_EQ(read->GetNumber(), room->GetNumber());
  EXPECT_EQ(read->GetName(), room->GetName());
  EXPECT_EQ(read->GetPosition(), room->GetPosition());
  EXPECT_EQ(read->GetTextHeight(), room->GetTextHeight());
  EXPECT_EQ(read->GetBoundary(), room->GetBoundary());
  EXPECT_EQ(read->GetTotalHeatLoad(), kHeat);
  EXPECT_EQ(read->GetTotalCoolLoad(), kCool);
  EXPECT_EQ(read->GetWinTotalMostLoad(), kWinterMost);
  EXPECT_EQ(read->GetSumTotalMostLoad(), kSummerMost);
  CTQRoom readRecord;
  EXPECT_EQ(1, ZP::GetTQRoom(SameIn(*again, id), &readRecord));
  EXPECT_EQ(readRecord.m_dWinData, 18.5);
  EXPECT_EQ(dxf::WriteDrawingBytes(*again), saved);
}

TEST_F(HvacSpaceFiling, OtherProgramsAreToldOfTheClass) {
  AddRoom();
  AddRoom({8000, 0, 0});
  const std::string saved = Plain(dxf::WriteDrawingBytes(database()));
  EXPECT_NE(
      saved.find("  0\nCLASS\n  1\nVKHVAC_SPACE\n  2\nVkDbHvacSpace\n  3\nZPPipeManager\n 90\n509\n 91\n2\n"
                 "280\n0\n281\n1\n"),
      saved.npos);
}

TEST_F(HvacSpaceFiling, AuditFindsNothing) {
  const auto id = AddRoom();
  const CTQRoom record = Record();
  ZP::SetTQRoom(id, &record);
  EXPECT_TRUE(acdbAudit(database(), false).empty());
}

TEST_F(HvacSpaceFiling, EveryVersionSinceR2000KeepsRoomAndRecord) {
  const auto id = AddRoom();
  const CTQRoom record = Record();
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  for (const char* version : {"AC1015", "AC1018", "AC1021", "AC1024", "AC1027", "AC1032"}) {
    std::vector<CString> losses;
    const auto again = Open(dxf::WriteDrawingBytes(database(), &losses, {version, {}}));
    for (const CString& loss : losses) {
      EXPECT_LT(loss.Find(L"VKHVAC_SPACE"), 0) << loss.ToUtf8();
      EXPECT_LT(loss.Find(L"XRECORD"), 0) << loss.ToUtf8();
    }
    const auto* read = VkDbHvacSpace::cast(SameIn(*again, id).object());
    ASSERT_TRUE(read) << version;
    EXPECT_EQ(read->GetName(), L"办公室") << version;
    CTQRoom readRecord;
    EXPECT_EQ(1, ZP::GetTQRoom(SameIn(*again, id), &readRecord)) << version;
    EXPECT_EQ(readRecord.m_strFloor, L"一层") << version;
  }
}

TEST_F(HvacSpaceFiling, WhatR12CanNotHoldIsTold) {
  AddRoom();
  std::vector<CString> losses;
  const std::string saved = dxf::WriteDrawingBytes(database(), &losses, {"AC1009", {}});
  EXPECT_EQ(saved.find("VKHVAC_SPACE"), saved.npos);
  const auto isTold = [](const CString& loss) { return loss.Find(L"VKHVAC_SPACE") >= 0; };
  EXPECT_TRUE(std::any_of(losses.begin(), losses.end(), isTold));
}

TEST_F(HvacSpaceFiling, AnUntouchedRoomIsSavedAsItCame) {
  const std::string groups =
      "90\n1\n10\n1.50\n20\n2.\n30\n0\n40\n35e1\n1\n A \n3\n \n41\n+7\n42\n0\n43\n0\n44\n0\n"
      "91\n3\n11\n0\n21\n0\n11\n1.0\n21\n0\n11\n1\n21\n1\n1001\nACAD\n1000\nx\n";
  const auto opened = OpenRoom(groups);
  ASSERT_TRUE(RoomIn(*opened));
  EXPECT_EQ(RoomIn(*opened)->GetTotalHeatLoad(), 7);
  EXPECT_NE(Plain(dxf::WriteDrawingBytes(*opened)).find("100\nVkDbHvacSpace\n" + groups), std::string::npos);
}

TEST_F(HvacSpaceFiling, ANewerVersionKeepsWhatThisOneDoesNotKnow) {
  const auto opened =
      OpenRoom("90\n7\n10\n1\n20\n2\n30\n0\n1\n101\n3\nA\n41\n5\n420\n99\n91\n0\n1\nsecond\n");
  VkDbHvacSpace* room = RoomIn(*opened);
  ASSERT_TRUE(room);
  {
    const AcDbObjectPointer<VkDbHvacSpace> open(room->objectId(), AcDb::kForWrite);
    EXPECT_EQ(open->GetNumber(), L"101") << "the first of a code counts";
    ASSERT_EQ(Acad::eOk, open->SetTotalHeatLoad(6));
    ASSERT_EQ(Acad::eOk, open->SetNumber(L"102"));
    ASSERT_EQ(Acad::eOk, open->SetBoundary({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}));
  }
  const std::string record(room->record().text());
  EXPECT_NE(record.find("90\n7\n"), record.npos);
  EXPECT_NE(record.find("420\n99\n"), record.npos);
  EXPECT_NE(record.find("\nsecond\n"), record.npos);
  EXPECT_NE(record.find("  1\n102\n"), record.npos) << record;
  EXPECT_NE(record.find(" 41\n6.0\n"), record.npos) << record;
  EXPECT_NE(record.find(" 91\n3\n"), record.npos) << record;
}

TEST_F(HvacSpaceFiling, GroupsInAnyOrderSurviveAChange) {
  const auto opened =
      OpenRoom("11\n0\n21\n0\n3\nA\n41\n7\n10\n5\n20\n6\n11\n9\n21\n0\n1\n101\n91\n3\n11\n9\n21\n9\n90\n1\n");
  VkDbHvacSpace* room = RoomIn(*opened);
  ASSERT_TRUE(room);
  EXPECT_EQ(room->GetBoundary().size(), 3u);
  {
    const AcDbObjectPointer<VkDbHvacSpace> open(room->objectId(), AcDb::kForWrite);
    ASSERT_EQ(Acad::eOk, open->transformBy(AcGeMatrix3d::translation({1, 1, 0})));
  }
  const auto again = Open(dxf::WriteDrawingBytes(*opened));
  room = RoomIn(*again);
  ASSERT_TRUE(room);
  EXPECT_EQ(room->GetName(), L"A");
  EXPECT_EQ(room->GetNumber(), L"101");
  EXPECT_EQ(room->GetTotalHeatLoad(), 7);
  EXPECT_EQ(room->GetPosition(), AcGePoint3d(6, 7, 0));
  EXPECT_EQ(room->GetBoundary(), (std::vector<AcGePoint3d>{{1, 1, 0}, {10, 1, 0}, {10, 10, 0}}));
}

TEST_F(HvacSpaceFiling, GroupsOfAnotherSubclassAreItsOwn) {
  const auto opened = OpenRoom("1\n101\n41\n7\n100\nVkDbHvacHall\n1\nhall\n11\n5\n42\n8\n");
  VkDbHvacSpace* room = RoomIn(*opened);
  ASSERT_TRUE(room);
  EXPECT_EQ(room->GetNumber(), L"101");
  EXPECT_EQ(room->GetTotalCoolLoad(), 0);
  EXPECT_TRUE(room->GetBoundary().empty());
}

TEST_F(HvacSpaceFiling, DamagedGroupsAreLeftAtTheirDefaults) {
  for (const char* groups :
       {"90\n-4\n10\nnan\n20\ninf\n30\n\n40\n-5\n41\n1e999\n42\nx\n210\n0\n220\n0\n230\n0\n", "",
        "21\n5\n21\n6\n", "91\n2000000000\n", "11\n1\n11\n2\n11\n3\n", "11\n1\n21\n2\n", "1\n\n3\n\n50\nx\n",
        "40\n0\n90\n99999999999999999999\n", "102\n{X\n10\n5\n"}) {
    const auto opened = OpenRoom(groups);
    VkDbHvacSpace* room = RoomIn(*opened);
    ASSERT_TRUE(room) << groups;
    EXPECT_EQ(room->GetTotalHeatLoad(), 0) << groups;
    EXPECT_EQ(room->GetTextHeight(), 350) << groups;
    AcDbExtents extents;
    room->getGeomExtents(extents);
    const AcDbObjectPointer<VkDbHvacSpace> open(room->objectId(), AcDb::kForWrite);
    EXPECT_EQ(Acad::eOk, open->transformBy(AcGeMatrix3d::rotation(1, AcGeVector3d::kZAxis)));
    std::vector<AcDbEntity*> parts;
    EXPECT_EQ(Acad::eOk, open->explode(parts));
    for (const AcDbEntity* part : parts) delete part;
    EXPECT_FALSE(open->record().isEmpty());
  }
}

TEST_F(HvacSpaceFiling, ARecordThatStandsInOneLongGroupIsReadToo) {
  const auto id = AddRoom();
  CTQRoom record = Record();
  record.m_strName = CString(L'x', 100'000);
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  std::string saved = Plain(dxf::WriteDrawingBytes(database()));
  // As another program may write it: all bytes behind one group code.
  const std::size_t first = saved.find("\n310\n");
  std::string joined;
  std::size_t at = first;
  for (; saved.compare(at, 5, "\n310\n") == 0; at = saved.find('\n', at + 5))
    joined += saved.substr(at + 5, saved.find('\n', at + 5) - at - 5);
  ASSERT_GT(joined.size(), 200'000u);
  saved.replace(first, at - first, "\n310\n" + joined);
  const auto again = Open(saved);
  CTQRoom read;
  ASSERT_EQ(1, ZP::GetTQRoom(SameIn(*again, id), &read));
  EXPECT_EQ(read.m_strName, record.m_strName);
}

TEST_F(HvacSpaceFiling, ThePageOnTheFormTellsTheLoads) {
  std::ifstream file(std::filesystem::path(ZP_SOURCE_DIR) / "docs/formats/rooms.md", std::ios::binary);
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  for (const auto& group : kHvacSpaceLoadGroups)
    EXPECT_NE(page.find("| " + std::to_string(group.code) + " | number |"), page.npos) << group.code;
}
