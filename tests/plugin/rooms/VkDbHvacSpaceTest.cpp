// The room as an entity: what it answers, shows and follows.
#include "plugin/rooms/VkDbHvacSpace.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "host/db/AcDbIdMapping.h"
#include "host/db/AcDbPoint.h"
#include "host/db/AcDbPolyline.h"
#include "host/db/AcDbText.h"
#include "host/ed/EntitySearch.h"
#include "host/ed/ObjectSnap.h"
#include "host/ge/AcGePlane.h"
#include "tests/plugin/rooms/RoomFixture.h"

namespace {

using Room = AcDbObjectPointer<VkDbHvacSpace>;

class HvacSpace : public RoomFixture {
 protected:
  static std::vector<std::unique_ptr<AcDbEntity>> Exploded(const VkDbHvacSpace& room) {
    std::vector<AcDbEntity*> parts;
    EXPECT_EQ(Acad::eOk, room.explode(parts));
    return {parts.begin(), parts.end()};
  }
  static void ExpectNear(const AcGePoint3d& a, const AcGePoint3d& b) {
    EXPECT_LT(a.distanceTo(b), 1e-8) << a.x << ' ' << a.y << ' ' << a.z;
  }
};

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kEndless = std::numeric_limits<double>::infinity();

} // namespace

TEST_F(HvacSpace, ANewRoomHasNoLoadsNoOutlineAndNoTexts) {
  const VkDbHvacSpace room;
  EXPECT_EQ(room.GetTotalHeatLoad(), 0);
  EXPECT_EQ(room.GetTotalCoolLoad(), 0);
  EXPECT_EQ(room.GetWinTotalMostLoad(), 0);
  EXPECT_EQ(room.GetSumTotalMostLoad(), 0);
  EXPECT_TRUE(room.GetBoundary().empty());
  EXPECT_TRUE(room.GetNumber().IsEmpty());
  EXPECT_TRUE(room.GetName().IsEmpty());
  EXPECT_EQ(room.GetTextHeight(), 350);
}

TEST_F(HvacSpace, TakesWhatIsANumberOnly) {
  const std::unique_ptr<VkDbHvacSpace> room(NewRoom());
  for (const double wrong : {kNoNumber, kEndless, -kEndless}) {
    EXPECT_EQ(Acad::eInvalidInput, room->SetTotalHeatLoad(wrong));
    EXPECT_EQ(Acad::eInvalidInput, room->SetTotalCoolLoad(wrong));
    EXPECT_EQ(Acad::eInvalidInput, room->SetWinTotalMostLoad(wrong));
    EXPECT_EQ(Acad::eInvalidInput, room->SetSumTotalMostLoad(wrong));
    EXPECT_EQ(Acad::eInvalidInput, room->SetTextHeight(wrong));
    EXPECT_EQ(Acad::eInvalidInput, room->SetPosition({0, wrong, 0}));
    EXPECT_EQ(Acad::eInvalidInput, room->SetBoundary({{0, 0, 0}, {1, 0, 0}, {1, wrong, 0}}));
  }
  EXPECT_EQ(Acad::eInvalidInput, room->SetTextHeight(0));
  EXPECT_EQ(Acad::eInvalidInput, room->SetTextHeight(-1));
  EXPECT_EQ(Acad::eInvalidInput, room->SetBoundary({{0, 0, 0}, {1, 0, 0}}));
  EXPECT_EQ(room->GetTotalHeatLoad(), kHeat);
  EXPECT_EQ(room->GetBoundary().size(), 4u);
  EXPECT_EQ(Acad::eOk, room->SetBoundary({}));
  EXPECT_EQ(Acad::eOk, room->SetTotalHeatLoad(-50)) << "a room may gain heat";
}

TEST_F(HvacSpace, IsChangedOnlyWhileOpenForWrite) {
  const auto id = AddRoom();
  const Room room(id, AcDb::kForRead);
  EXPECT_EQ(Acad::eNotOpenForWrite, room->SetTotalHeatLoad(1));
  EXPECT_EQ(Acad::eNotOpenForWrite, room->SetName(L"x"));
  EXPECT_EQ(Acad::eNotOpenForWrite, room->SetBoundary({}));
  EXPECT_EQ(Acad::eNotOpenForWrite, room->transformBy(AcGeMatrix3d::translation({1, 0, 0})));
  EXPECT_EQ(room->GetTotalHeatLoad(), kHeat);
}

TEST_F(HvacSpace, IsOnlyOpenedAsWhatItIs) {
  const auto line = addLine({0, 0, 0}, {1, 0, 0});
  EXPECT_EQ(Acad::eNotThatKindOfClass, Room(line, AcDb::kForRead).openStatus());
  EXPECT_EQ(AddRoom().object()->isA(), VkDbHvacSpace::desc());
  EXPECT_STREQ(VkDbHvacSpace::desc()->dxfName(), "VKHVAC_SPACE");
}

TEST_F(HvacSpace, TheOutlineIsBroughtToTheHeightOfThePlace) {
  const std::unique_ptr<VkDbHvacSpace> room(NewRoom());
  room->SetPosition({1, 1, 300});
  ASSERT_EQ(Acad::eOk, room->SetBoundary({{0, 0, 5}, {10, 0, -7}, {10, 10, 0}}));
  for (const auto& corner : room->GetBoundary()) EXPECT_EQ(corner.z, 300);
}

TEST_F(HvacSpace, ShowsItsOutlineAndALineForNumberAndName) {
  const std::unique_ptr<VkDbHvacSpace> room(NewRoom());
  const auto parts = Exploded(*room);
  ASSERT_EQ(parts.size(), 3u);
  const auto* outline = AcDbPolyline::cast(parts[0].get());
  ASSERT_TRUE(outline);
  EXPECT_TRUE(outline->isClosed());
  double area = 0;
  EXPECT_EQ(Acad::eOk, outline->getArea(area));
  EXPECT_DOUBLE_EQ(area, 6000.0 * 4000.0);
  const auto* number = AcDbText::cast(parts[1].get());
  const auto* name = AcDbText::cast(parts[2].get());
  ASSERT_TRUE(number && name);
  EXPECT_EQ(number->textString(), L"101");
  EXPECT_EQ(number->position(), room->GetPosition());
  EXPECT_EQ(name->textString(), L"办公室");
  ExpectNear(name->position(), {1000, 2000 - 1.6 * 350, 0});
}

TEST_F(HvacSpace, WithoutAnOutlineShowsItsPlace) {
  VkDbHvacSpace room;
  room.SetPosition({7, 8, 9});
  room.SetName(L"走廊");
  const auto parts = Exploded(room);
  ASSERT_EQ(parts.size(), 2u);
  ASSERT_TRUE(AcDbPoint::cast(parts[0].get()));
  EXPECT_EQ(AcDbPoint::cast(parts[0].get())->position(), AcGePoint3d(7, 8, 9));
  EXPECT_EQ(AcDbText::cast(parts[1].get())->position(), AcGePoint3d(7, 8, 9)) << "no gap for the number";
}

TEST_F(HvacSpace, PartsHaveTheRoomsProperties) {
  const auto layer = addLayer(L"房间");
  const auto id = AddRoom();
  const Room room(id, AcDb::kForWrite);
  room->setLayer(layer);
  room->setColorIndex(3);
  for (const auto& part : Exploded(*room.object())) {
    EXPECT_EQ(part->layerId(), layer);
    EXPECT_EQ(part->colorIndex(), 3);
  }
}

TEST_F(HvacSpace, ItsExtentsAreThoseOfWhatItShows) {
  AcDbExtents extents;
  ASSERT_EQ(Acad::eOk, RoomOf(AddRoom({100, 200, 0})).getGeomExtents(extents));
  EXPECT_EQ(extents.minPoint(), AcGePoint3d(100, 200, 0));
  EXPECT_EQ(extents.maxPoint(), AcGePoint3d(6100, 4200, 0));
}

TEST_F(HvacSpace, MovesTurnsAndScalesAsAWhole) {
  const std::unique_ptr<VkDbHvacSpace> room(NewRoom());
  ASSERT_EQ(Acad::eOk, room->transformBy(AcGeMatrix3d::translation({10, 20, 30})));
  ExpectNear(room->GetPosition(), {1010, 2020, 30});
  ExpectNear(room->GetBoundary()[2], {6010, 4020, 30});
  ASSERT_EQ(Acad::eOk, room->transformBy(AcGeMatrix3d::rotation(std::numbers::pi / 2, AcGeVector3d::kZAxis)));
  ExpectNear(room->GetPosition(), {-2020, 1010, 30});
  ExpectNear(room->GetBoundary()[2], {-4020, 6010, 30});
  ASSERT_EQ(Acad::eOk, room->transformBy(AcGeMatrix3d::scaling(2)));
  ExpectNear(room->GetPosition(), {-4040, 2020, 60});
  EXPECT_DOUBLE_EQ(room->GetTextHeight(), 700);
  const auto parts = Exploded(*room);
  EXPECT_NEAR(AcDbText::cast(parts[2].get())->rotation(), std::numbers::pi / 2, 1e-12);
  ExpectNear(AcDbText::cast(parts[2].get())->position(), {-4040 + 1.6 * 700, 2020, 60});
}

TEST_F(HvacSpace, FollowsIntoAnyPlaneAndBack) {
  const std::unique_ptr<VkDbHvacSpace> room(NewRoom());
  const auto turned = AcGeMatrix3d::rotation(1.1, AcGeVector3d(1, 2, 3), {5, 6, 7});
  const auto before = Exploded(*room);
  ASSERT_EQ(Acad::eOk, room->transformBy(turned));
  ExpectNear(room->GetPosition(), turned * AcGePoint3d(1000, 2000, 0));
  ExpectNear(room->GetBoundary()[3], turned * AcGePoint3d(0, 4000, 0));
  const auto after = Exploded(*room);
  for (std::size_t i = 1; i < before.size(); ++i) // the second line of text lies where it is turned to
    ExpectNear(AcDbText::cast(after[i].get())->position(),
               turned * AcDbText::cast(before[i].get())->position());
  ASSERT_EQ(Acad::eOk, room->transformBy(turned.inverse()));
  ExpectNear(room->GetPosition(), {1000, 2000, 0});
  ExpectNear(room->GetBoundary()[2], {6000, 4000, 0});
}

TEST_F(HvacSpace, TheOutlineFollowsAMirrorWhileTheTextsStayReadable) {
  const std::unique_ptr<VkDbHvacSpace> room(NewRoom());
  const auto mirror = AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d(), AcGeVector3d(1, 0, 0)));
  ASSERT_EQ(Acad::eOk, room->transformBy(mirror));
  ExpectNear(room->GetPosition(), {-1000, 2000, 0});
  ExpectNear(room->GetBoundary()[1], {-6000, 0, 0});
  const auto parts = Exploded(*room);
  EXPECT_EQ(AcDbText::cast(parts[1].get())->normal(), AcGeVector3d::kZAxis);
}

TEST_F(HvacSpace, StaysAsItWasForAMatrixThatItCanNotFollow) {
  const std::unique_ptr<VkDbHvacSpace> room(NewRoom());
  AcGeMatrix3d flat;
  flat(1, 1) = 0.5;
  EXPECT_EQ(Acad::eCannotScaleNonUniformly, room->transformBy(flat));
  AcGeMatrix3d endless;
  endless(0, 3) = kEndless;
  EXPECT_EQ(Acad::eInvalidInput, room->transformBy(endless));
  EXPECT_NE(Acad::eOk, room->transformBy(AcGeMatrix3d::scaling(1e306)));
  ExpectNear(room->GetPosition(), {1000, 2000, 0});
  ExpectNear(room->GetBoundary()[2], {6000, 4000, 0});
}

TEST_F(HvacSpace, ACloneIsEqualAndStandsByItself) {
  const auto id = AddRoom();
  const std::unique_ptr<AcRxObject> made(RoomOf(id).clone());
  auto* copy = VkDbHvacSpace::cast(made.get());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->GetName(), L"办公室");
  EXPECT_EQ(copy->GetTotalCoolLoad(), kCool);
  EXPECT_EQ(copy->GetBoundary().size(), 4u);
  copy->SetName(L"会议室");
  EXPECT_EQ(RoomOf(id).GetName(), L"办公室");
}

TEST_F(HvacSpace, ACopyInAnotherDrawingIsARoomThere) {
  const auto id = AddRoom();
  AcDbDatabase other(true);
  AcDbIdMapping map;
  ASSERT_EQ(Acad::eOk, database().wblockCloneObjects({id}, other.modelSpaceId(), map, AcDb::kDrcIgnore));
  const auto* copy = VkDbHvacSpace::cast(map.valueOf(id).object());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->GetSumTotalMostLoad(), kSummerMost);
}

TEST_F(HvacSpace, ChangesAreUndoneAndRedone) {
  const auto id = AddRoom();
  database().undo().beginCommand(L"改");
  {
    const Room room(id, AcDb::kForWrite);
    room->SetName(L"机房");
    room->SetTotalHeatLoad(5);
    room->SetBoundary({});
    room->transformBy(AcGeMatrix3d::translation({1, 1, 1}));
  }
  database().undo().endCommand();
  ASSERT_EQ(Acad::eOk, database().undo().undo());
  EXPECT_EQ(RoomOf(id).GetName(), L"办公室");
  EXPECT_EQ(RoomOf(id).GetTotalHeatLoad(), kHeat);
  EXPECT_EQ(RoomOf(id).GetBoundary().size(), 4u);
  EXPECT_EQ(RoomOf(id).GetPosition(), AcGePoint3d(1000, 2000, 0));
  ASSERT_EQ(Acad::eOk, database().undo().redo());
  EXPECT_EQ(RoomOf(id).GetName(), L"机房");
  EXPECT_TRUE(RoomOf(id).GetBoundary().empty());
  EXPECT_EQ(RoomOf(id).GetPosition(), AcGePoint3d(1001, 2001, 1));
}

TEST_F(HvacSpace, IsFoundByItsOutlineAndByItsTexts) {
  const auto id = AddRoom();
  EXPECT_EQ(ed::EntityAt(database(), {6000, 1000, 0}, 10.0), id);
  EXPECT_EQ(ed::EntityAt(database(), {1100, 2100, 0}, 50.0), id);
  EXPECT_TRUE(ed::EntityAt(database(), {4000, 500, 0}, 10.0).isNull());
}

TEST_F(HvacSpace, SnapsAtCornersMiddlesAndItsPlace) {
  const AcDbObjectId ids[] = {AddRoom()};
  const auto snapped = [&](double x, double y, long modes) {
    const auto snap = ed::SnapTo(ids, {x, y, 0}, 60, modes);
    return snap ? snap->point : AcGePoint3d(-1, -1, -1);
  };
  EXPECT_EQ(snapped(6030, 3980, ed::kSnapEnd), AcGePoint3d(6000, 4000, 0));
  EXPECT_EQ(snapped(3020, 10, ed::kSnapMiddle), AcGePoint3d(3000, 0, 0));
  EXPECT_EQ(snapped(0, 2020, ed::kSnapMiddle), AcGePoint3d(0, 2000, 0)) << "the side that closes the outline";
  EXPECT_EQ(snapped(1010, 2010, ed::kSnapPoint), AcGePoint3d(1000, 2000, 0));
}
