// MOVE, COPY and ROTATE.
#include "host/db/ExtentsDraw.h"
#include "host/ed/EntitySearch.h"
#include "tests/host/commands/CommandFixture.h"

#include <algorithm>
#include <numbers>

namespace {

class EditCommands : public CommandFixture {
 protected:
  using Starts = std::vector<AcGePoint3d>;

  static const AcDbLine& line(const AcDbObjectId& id) { return *AcDbLine::cast(id.object()); }
  // Where the lines of the drawing begin.
  Starts starts() {
    Starts points;
    for (const auto& id : ed::AllEntities(database())) points.push_back(line(id).startPoint());
    return points;
  }
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

TEST_F(EditCommands, CopyGoesOnUntilEnter) {
  addLine({0, 0, 0}, {1, 0, 0});
  run(L"COPY", {L"all", L"", L"0,0", L"10,0", L"20,0", L""});
  EXPECT_EQ(starts(), (Starts{{0, 0, 0}, {10, 0, 0}, {20, 0, 0}}));
  EXPECT_TRUE(frontEnd.said(L"复制了 2 个"));
  run(L"U");
  EXPECT_EQ(1u, entityCount()) << "the whole command";
  run(L"REDO");
  EXPECT_EQ(3u, entityCount());
}

TEST_F(EditCommands, CopyTakesADisplacementAsSuchOrAsTheBasePoint) {
  addLine({0, 0, 0}, {1, 0, 0});
  run(L"COPY", {L"l", L"", L"3,4", L""});
  run(L"COPY", {L"l", L"", L"", L"1,1,1"});
  run(L"COPY", {L"l", L"", L"D", L"1,0"});
  EXPECT_EQ(starts(), (Starts{{0, 0, 0}, {3, 4, 0}, {4, 5, 1}, {5, 5, 1}}));
}

TEST_F(EditCommands, CopyTakesBackItsLastStep) {
  addLine({0, 0, 0}, {1, 0, 0});
  run(L"COPY", {L"all", L"", L"0,0", L"10,0", L"20,0", L"U", L"30,0", L"E"});
  EXPECT_EQ(starts(), (Starts{{0, 0, 0}, {10, 0, 0}, {30, 0, 0}}));
  EXPECT_TRUE(frontEnd.said(L"复制了 2 个"));
  run(L"COPY", {L"l", L"", L"0,0", L"5,5", L"U", L"U", L""});
  EXPECT_EQ(3u, entityCount());
  EXPECT_TRUE(frontEnd.said(L"没有可放弃的复制"));
}

TEST_F(EditCommands, CopyMakesARow) {
  addLine({0, 0, 0}, {1, 0, 0});
  run(L"COPY", {L"all", L"", L"0,0", L"A", L"4", L"2,1", L""});
  EXPECT_EQ(starts(), (Starts{{0, 0, 0}, {2, 1, 0}, {4, 2, 0}, {6, 3, 0}}));
  run(L"U");
  run(L"COPY", {L"all", L"", L"0,0", L"A", L"4", L"F", L"6,3", L""});
  EXPECT_EQ(starts(), (Starts{{0, 0, 0}, {2, 1, 0}, {4, 2, 0}, {6, 3, 0}})) << "the last one stands there";
}

TEST_F(EditCommands, ARowHasAtLeastTwo) {
  addLine({0, 0, 0}, {1, 0, 0});
  run(L"COPY", {L"all", L"", L"0,0", L"A", L"1", L"2", L"7,0", L""});
  EXPECT_GE(reason().Find(L"不是一排的项目数"), 0);
  EXPECT_EQ(starts(), (Starts{{0, 0, 0}, {7, 0, 0}}));
}

TEST_F(EditCommands, ARowOfTooManyIsRefused) {
  for (int i = 0; i < 40; ++i) addLine({0, 0, 0}, {1, 0, 0});
  run(L"COPY", {L"all", L"", L"0,0", L"A", L"32767", L"2", L"7,0", L""});
  EXPECT_GE(reason().Find(L"太多"), 0);
  EXPECT_EQ(80u, entityCount());
}

TEST_F(EditCommands, CopyOnceEndsWithTheFirst) {
  addLine({0, 0, 0}, {1, 0, 0});
  run(L"COPY", {L"all", L"", L"O", L"S", L"0,0", L"10,0"});
  EXPECT_EQ(2u, entityCount());
  EXPECT_EQ(1, SystemVariables::integer(L"COPYMODE"));
  run(L"COPY", {L"l", L"", L"O", L"M", L"0,0", L"5,0", L"6,0", L""});
  EXPECT_EQ(4u, entityCount());
}

TEST_F(EditCommands, CopiesOfWhatIsLockedAreLockedToo) {
  addLayer(L"锁");
  addLine({0, 0, 0}, {1, 0, 0}, L"锁");
  run(L"LAYER", {L"LO", L"锁", L""});
  run(L"COPY", {L"all", L"", L"0,0", L"9,9", L""});
  EXPECT_EQ(starts(), (Starts{{0, 0, 0}, {9, 9, 0}}));
  EXPECT_EQ(line(ed::AllEntities(database()).back()).layer(), L"锁");
}

TEST_F(EditCommands, EscapeTakesBackAllCopies) {
  addLine({0, 0, 0}, {1, 0, 0});
  run(L"COPY", {L"all", L"", L"0,0", L"10,0", L"*cancel*"});
  EXPECT_EQ(1u, entityCount());
}

TEST_F(EditCommands, WhatIsCopiedIsShownOnItsWay) {
  addLine({0, 0, 0}, {1, 0, 0});
  std::vector<AcGePoint3d> shown;
  frontEnd.onTransients = [&] {
    ExtentsDraw box;
    session().transients().draw(box);
    if (!box.extents().isEmpty()) shown.push_back(box.extents().minPoint());
  };
  run(L"COPY", {L"all", L"", L"0,0", L"drag 4,4", L"A", L"3", L"drag 1,0", L"2,0", L""});
  EXPECT_NE(std::find(shown.begin(), shown.end(), AcGePoint3d(4, 4, 0)), shown.end());
  EXPECT_NE(std::find(shown.begin(), shown.end(), AcGePoint3d(1, 0, 0)), shown.end());
}
