// Loads of rooms that the user picks.
#include "plugin/rooms/RoomLoads.h"

#include "host/db/AcDbUnknownEntity.h"
#include "tests/plugin/rooms/RoomFixture.h"

namespace {

using Query = int (*)(double&, double&);

// What a query gives; figures that it leaves alone stay -1.
struct Figures {
  int result = 0;
  double first = -1;
  double second = -1;
  bool operator==(const Figures&) const = default;
};
const Figures kNothing;

class RoomLoads : public RoomFixture {
 protected:
  Figures Ask(Query query, std::initializer_list<const wchar_t*> answers) {
    frontEnd.type(answers);
    Figures figures;
    figures.result = query(figures.first, figures.second);
    EXPECT_EQ(0u, document->lockCount()) << "every lock is given back";
    return figures;
  }
  static inline const Query kQueries[] = {ZP::GetSelHvacSpaceHMLoad, ZP::GetSelHvacSpaceCMLoad,
                                          ZP::GetSelHvacSpaceWinData};
};

} // namespace

TEST_F(RoomLoads, OfHeatingAreTheTotalAndTheWintersLargest) {
  AddRoom();
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceHMLoad, {L"0,0"}), (Figures{1, kHeat, kWinterMost}));
  EXPECT_EQ(frontEnd.prompts, std::vector<CString>{L"请选择房间编号"});
  EXPECT_EQ(frontEnd.output.Find(L"无负荷对象信息"), -1) << "the record is not looked at";
}

TEST_F(RoomLoads, OfCoolingAreTheTotalAndTheSummersLargest) {
  AddRoom();
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceCMLoad, {L"0,0"}), (Figures{1, kCool, kSummerMost}));
}

TEST_F(RoomLoads, WithTheTemperatureComeFromEntityAndRecord) {
  const auto id = AddRoom();
  CTQRoom record = Record();
  record.m_dHeatLoad = 7; // the load is the entity's
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceWinData, {L"0,0"}), (Figures{1, kHeat, 18.5}));
}

TEST_F(RoomLoads, OfARoomWithoutARecordHaveNoTemperature) {
  AddRoom();
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceWinData, {L"0,0"}), kNothing);
  EXPECT_TRUE(frontEnd.said(L"\n该房间编号无负荷对象信息。"));
}

TEST_F(RoomLoads, StayAsTheyWereWhenThePickIsCancelled) {
  AddRoom();
  for (const Query query : kQueries) {
    EXPECT_EQ(Ask(query, {L"*cancel*"}), kNothing);
    EXPECT_EQ(Ask(query, {L""}), kNothing);
    frontEnd.lines.clear();
    EXPECT_EQ(Ask(query, {}), kNothing) << "the end of the input";
  }
  EXPECT_EQ(frontEnd.output.Find(L"无负荷对象信息"), -1);
}

TEST_F(RoomLoads, AreAskedOfRoomsOnly) {
  addLine({0, 0, 0}, {0, -5000, 0});
  AddRoom();
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceHMLoad, {L"0,-3000", L"*cancel*"}), kNothing);
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceHMLoad, {L"0,-3000", L"6000,2000"}), (Figures{1, kHeat, kWinterMost}));
}

TEST_F(RoomLoads, AreReadOnLockedLayersToo) {
  const auto layer = addLayer(L"房间");
  auto* room = NewRoom();
  room->setLayer(layer);
  const auto id = add(room);
  const CTQRoom record = Record();
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsLocked(true);
  for (const Query query : kQueries) EXPECT_EQ(Ask(query, {L"0,0"}).result, 1);
}

TEST_F(RoomLoads, OfAnErasedRoomCanNotBeAsked) {
  const auto id = AddRoom();
  AcDbObjectPointer<AcDbEntity>(id, AcDb::kForWrite)->erase();
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceHMLoad, {L"0,0", L"*cancel*"}), kNothing);
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceHMLoad, {(L"#" + id.handle().ascii()).GetString(), L"*cancel*"}),
            kNothing);
}

TEST_F(RoomLoads, OfARoomThatSomebodyWritesAreNotTold) {
  const auto id = AddRoom();
  const AcDbObjectPointer<AcDbEntity> writer(id, AcDb::kForWrite);
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceHMLoad, {L"0,0"}), kNothing);
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceCMLoad, {L"0,0"}), kNothing);
}

TEST_F(RoomLoads, AreGivenWithoutTheLockToo) {
  struct Refuser : AcApDocManagerReactor {
    Refuser() { acDocManagerPtr()->addReactor(this); }
    ~Refuser() override { acDocManagerPtr()->removeReactor(this); }
    void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                 const wchar_t*) override {
      veto();
    }
  };
  const auto id = AddRoom();
  const CTQRoom record = Record();
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  const Refuser refuser;
  EXPECT_EQ(Ask(ZP::GetSelHvacSpaceWinData, {L"0,0"}), (Figures{1, kHeat, 18.5}));
}

TEST_F(RoomLoads, HoldTheWriteLockWhileTheUserPicks) {
  AddRoom();
  std::size_t locks = 0;
  auto mode = AcAp::kNotLocked;
  frontEnd.beforeLine = [&] {
    locks = document->lockCount();
    mode = document->lockMode();
  };
  Ask(ZP::GetSelHvacSpaceHMLoad, {L"0,0"});
  EXPECT_EQ(locks, 1u);
  EXPECT_EQ(mode, AcAp::kWrite);
}

TEST_F(RoomLoads, TheIdIsLeftAloneUnlessARoomIsPicked) {
  const auto room = AddRoom();
  const auto line = addLine({0, -100, 0}, {50, -100, 0});
  AcDbObjectId id = line;
  frontEnd.type({L"*cancel*"});
  EXPECT_EQ(0, ZP::SelectedSingleVkDbHvacSpace(id));
  EXPECT_EQ(id, line);
  frontEnd.type({L"0,0"});
  EXPECT_EQ(1, ZP::SelectedSingleVkDbHvacSpace(id));
  EXPECT_EQ(id, room);
}

TEST_F(RoomLoads, WithoutADrawingThereAreNone) {
  acDocManagerPtr()->closeAll();
  double a = -1;
  double b = -1;
  for (const Query query : kQueries) EXPECT_EQ(0, query(a, b));
  EXPECT_EQ(a, -1);
  EXPECT_EQ(b, -1);
}
