// Hidden entities, keys during drags, single picks and the drawing's unit.
#include "plugin/graph/Screen.h"
#include "host/ed/ArxDbgRbList.h"
#include "host/ed/ArxDbgSelSet.h"
#include "host/ed/EdPrompts.h"
#include "plugin/graph/DrawUnit.h"
#include "plugin/graph/VkHvacSelect.h"
#include "tests/support/EditorFixture.h"

namespace {
using Screen = EditorFixture;
}

TEST_F(Screen, AHiddenEntityCannotBePickedUntilItIsShownAgain) {
  const auto id = addLine({0, 0, 0}, {10, 0, 0});
  EXPECT_NE(0, ZP::EntityRedraw(id, 2));
  EXPECT_EQ(1, frontEnd.regenerations);
  frontEnd.type({L"5,0", L"5,0"});
  EXPECT_FALSE(ed::AskEntity({L"实体:", {}, 0, {}}).hasValue());
  EXPECT_NE(0, ZP::EntityRedraw(id, 1));
  frontEnd.type({L"5,0"});
  EXPECT_TRUE(ed::AskEntity({L"实体:", {}, 0, {}}).hasValue());
}

TEST_F(Screen, HidingDoesNotTouchTheDrawing) {
  const auto id = addLine({0, 0, 0}, {10, 0, 0});
  database().setModified(false);
  ZP::EntityRedraw(id, 2);
  EXPECT_FALSE(database().isModified());
  EXPECT_EQ(AcDb::kVisible, AcDbEntity::cast(id.object())->visibility());
  ArxDbgSelSet all;
  EXPECT_EQ(ArxDbgSelSet::kSelected, all.allSelect()) << "a selection of everything takes it";
}

TEST_F(Screen, OtherModesAndNullIdsAreRefused) {
  const auto id = addLine({0, 0, 0}, {10, 0, 0});
  EXPECT_EQ(0, ZP::EntityRedraw(id, 0));
  EXPECT_EQ(0, ZP::EntityRedraw(id, 3));
  EXPECT_EQ(0, ZP::EntityRedraw(AcDbObjectId(), 2));
  EXPECT_EQ(0, frontEnd.regenerations);
}

TEST_F(Screen, ASinglePickTakesWhatTheFilterTakes) {
  addLine({0, 0, 0}, {10, 0, 0});
  const auto circle = add(new AcDbCircle({0, 50, 0}, {0, 0, 1}, 5));
  const ArxDbgRbList filter(acutBuildList(RTDXF0, L"CIRCLE", RTNONE));
  AcDbObjectId picked;
  frontEnd.type({L"5,0", L"5,50"});
  EXPECT_EQ(5100, VkHvacSelect::GetInstance()->SingleSelectEntity(L"\n请选择:", picked, filter));
  EXPECT_EQ(circle, picked);
  EXPECT_TRUE(frontEnd.said(L"不合条件"));
}

TEST_F(Screen, ASinglePickThatIsGivenUpLeavesTheIdAlone) {
  const auto id = addLine({0, 0, 0}, {10, 0, 0});
  auto picked = id;
  frontEnd.type({L"*cancel*", L""});
  EXPECT_NE(5100, VkHvacSelect::GetInstance()->SingleSelectEntity(L"\n请选择:", picked, nullptr));
  EXPECT_NE(5100, VkHvacSelect::GetInstance()->SingleSelectEntity(L"\n请选择:", picked, nullptr));
  EXPECT_EQ(id, picked);
}

TEST_F(Screen, TheUnitFlagTellsDrawingsInMetres) {
  EXPECT_EQ(0, VkDbGetDrawUnit(nullptr));
  SystemVariables::set(L"INSUNITS", 4L);
  EXPECT_EQ(0, VkDbGetDrawUnit(&database()));
  SystemVariables::set(L"INSUNITS", 6L);
  EXPECT_EQ(1, VkDbGetDrawUnit(nullptr));
  acDocManagerPtr()->closeAll();
  EXPECT_EQ(0, VkDbGetDrawUnit(nullptr));
}
