// MOVE, COPY and ROTATE.
#include "tests/host/commands/CommandFixture.h"

#include <numbers>

namespace {

class EditCommands : public CommandFixture {
 protected:
  static const AcDbLine& line(const AcDbObjectId& id) { return *AcDbLine::cast(id.object()); }
};

} // namespace

TEST_F(EditCommands, MoveShiftsFromPointToPoint) {
  const auto id = addLine({0, 0, 0}, {1, 0, 0});
  run(L"MOVE", {L"all", L"", L"5,5", L"6,7"});
  EXPECT_EQ(AcGePoint3d(1, 2, 0), line(id).startPoint());
  EXPECT_TRUE(frontEnd.said(L"移动了 1 个"));
  run(L"U");
  EXPECT_EQ(AcGePoint3d(0, 0, 0), line(id).startPoint());
}

TEST_F(EditCommands, MoveTakesADisplacementAsSuchOrAsTheBasePoint) {
  const auto id = addLine({0, 0, 0}, {1, 0, 0});
  run(L"MOVE", {L"all", L"", L"3,4", L""});
  EXPECT_EQ(AcGePoint3d(3, 4, 0), line(id).startPoint());
  run(L"MOVE", {L"all", L"", L"", L"1,1,1"});
  EXPECT_EQ(AcGePoint3d(4, 5, 1), line(id).startPoint());
  run(L"MOVE", {L"all", L"", L"D", L"1,0"});
  EXPECT_EQ(AcGePoint3d(5, 5, 1), line(id).startPoint());
}

TEST_F(EditCommands, MoveLeavesLockedLayersAlone) {
  addLayer(L"锁");
  const auto locked = addLine({0, 0, 0}, {1, 0, 0}, L"锁");
  const auto free = addLine({0, 0, 0}, {1, 0, 0});
  run(L"LAYER", {L"LO", L"锁", L""});
  run(L"MOVE", {L"all", L"", L"0,0", L"9,9"});
  EXPECT_EQ(AcGePoint3d(0, 0, 0), line(locked).startPoint());
  EXPECT_EQ(AcGePoint3d(9, 9, 0), line(free).startPoint());
  EXPECT_TRUE(frontEnd.said(L"1 个在锁定的图层上"));
}

TEST_F(EditCommands, EscapeAtTheSecondPointMovesNothing) {
  const auto id = addLine({0, 0, 0}, {1, 0, 0});
  run(L"MOVE", {L"all", L"", L"0,0", L"*cancel*"});
  EXPECT_EQ(AcGePoint3d(0, 0, 0), line(id).startPoint());
}

TEST_F(EditCommands, WhatIsMovedIsShownOnItsWay) {
  addLine({0, 0, 0}, {1, 0, 0});
  std::vector<bool> shown;
  frontEnd.onTransients = [&] { shown.push_back(!session().transients().isEmpty()); };
  run(L"MOVE", {L"all", L"", L"0,0", L"drag 4,4", L"5,5"});
  EXPECT_EQ((std::vector<bool>{true, true, false}), shown) << "at the prompt, moved, gone";
}

TEST_F(EditCommands, RotateTurnsAboutItsBase) {
  const auto id = addLine({1, 0, 0}, {2, 0, 0});
  run(L"ROTATE", {L"all", L"", L"1,0", L"90"});
  EXPECT_TRUE(line(id).startPoint().isEqualTo({1, 0, 0}));
  EXPECT_TRUE(line(id).endPoint().isEqualTo({1, 1, 0}));
  run(L"ROTATE", {L"all", L"", L"1,0", L"0,0"});
  EXPECT_TRUE(line(id).endPoint().isEqualTo({1, -1, 0})) << "by the direction from the base, half a turn";
}

TEST_F(EditCommands, RotateTakesAReference) {
  const auto id = addLine({0, 0, 0}, {1, 1, 0});
  run(L"ROTATE", {L"all", L"", L"0,0", L"R", L"45", L"90"});
  EXPECT_TRUE(line(id).endPoint().isEqualTo({0, std::numbers::sqrt2, 0}));
  run(L"ROTATE", {L"all", L"", L"0,0", L"R", L"0,0", L"0,1", L"0"});
  EXPECT_TRUE(line(id).endPoint().isEqualTo({std::numbers::sqrt2, 0, 0}));
}

TEST_F(EditCommands, AnAngleMustBeOne) {
  addLine({1, 0, 0}, {2, 0, 0});
  run(L"ROTATE", {L"all", L"", L"1,0", L"九十"});
  EXPECT_GE(reason().Find(L"不是角度"), 0);
}
