#include "ZpPaths.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "tests/host/commands/CommandFixture.h"

namespace {
using DrawingCommands = CommandFixture;
}

TEST_F(DrawingCommands, LineGoesFromPointToPoint) {
  run(L"LINE", {L"0,0", L"@10,0", L"@0,5", L"C"});
  EXPECT_EQ(3u, entityCount());
  EXPECT_EQ(AcGePoint3d(0, 0, 0), only<AcDbLine>()->endPoint());
  EXPECT_FALSE(refused());
}

TEST_F(DrawingCommands, LineTakesBackItsLastSegment) {
  run(L"L", {L"0,0", L"10,0", L"20,0", L"U", L"@0,5", L""});
  EXPECT_EQ(2u, entityCount());
  EXPECT_EQ(AcGePoint3d(10, 5, 0), only<AcDbLine>()->endPoint());
  run(L"LINE", {L"0,0", L"U", L""});
  EXPECT_TRUE(frontEnd.said(L"没有可放弃的线段"));
}

TEST_F(DrawingCommands, NewEntitiesGetTheCurrentProperties) {
  addLayer(L"采暖");
  run(L"CLAYER", {L"采暖"});
  run(L"SETVAR", {L"CECOLOR", L"3"});
  run(L"CIRCLE", {L"1,1", L"D", L"10"});
  const auto* circle = only<AcDbCircle>();
  EXPECT_EQ(L"采暖", circle->layer());
  EXPECT_EQ(3, circle->colorIndex());
  EXPECT_EQ(5.0, circle->radius());
  run(L"CIRCLE", {L"1,1", L"0", L"-2", L"4,5"});
  EXPECT_EQ(2u, frontEnd.refusals.size());
  EXPECT_EQ(5.0, only<AcDbCircle>()->radius());
}

TEST_F(DrawingCommands, EraseLeavesLockedLayersAlone) {
  addLayer(L"锁");
  addLine({0, 0, 0}, {1, 0, 0}, L"锁");
  addLine({0, 0, 0}, {1, 0, 0});
  run(L"LAYER", {L"LO", L"锁", L""});
  run(L"ERASE", {L"all", L""});
  EXPECT_EQ(1u, entityCount());
  EXPECT_TRUE(frontEnd.said(L"1 个在锁定的图层上"));
  EXPECT_TRUE(frontEnd.said(L"删除了 1 个"));
}

TEST_F(DrawingCommands, SelectServesTheNextCommand) {
  addLine({0, 0, 0}, {1, 0, 0});
  addLine({0, 9, 0}, {1, 9, 0});
  run(L"SELECT", {L"0.5,0", L""});
  run(L"ERASE");
  EXPECT_EQ(1u, entityCount());
}

TEST_F(DrawingCommands, UndoAndRedoTakeWholeCommands) {
  run(L"LINE", {L"0,0", L"1,0", L"2,0", L""});
  run(L"POINT", {L"5,5"});
  run(L"U");
  EXPECT_EQ(2u, entityCount());
  run(L"U");
  EXPECT_EQ(0u, entityCount());
  run(L"U");
  EXPECT_GE(reason().Find(L"没有可放弃"), 0);
  run(L"REDO");
  EXPECT_EQ(2u, entityCount());
  run(L"REDO");
  EXPECT_EQ(3u, entityCount());
  run(L"REDO");
  EXPECT_GE(reason().Find(L"没有可重做"), 0);
  run(L"UNDO", {L"5"});
  EXPECT_EQ(0u, entityCount());
}

TEST_F(DrawingCommands, ListTellsKindPropertiesAndGeometry) {
  addLine({0, 0, 0}, {30, 40, 0});
  add(new AcDbCircle(AcGePoint3d(1, 2, 3), AcGeVector3d(0, 0, 1), 10));
  run(L"LIST", {L"all", L""});
  EXPECT_TRUE(frontEnd.said(L"直线\n  图层：0\n"));
  EXPECT_TRUE(frontEnd.said(L"长度：50"));
  EXPECT_TRUE(frontEnd.said(L"面积：314.1593"));
  EXPECT_TRUE(frontEnd.said(L"颜色：随层"));
}

TEST_F(DrawingCommands, RegenReachesTheFrontEnd) {
  run(L"regen");
  EXPECT_EQ(1, frontEnd.regenerations);
  EXPECT_EQ(L"", database().undo().undoName()) << "looking is no step to undo";
}

TEST_F(DrawingCommands, HelpListsEveryCommand) {
  run(L"HELP");
  for (const auto& command : acedRegCmds->commands()) EXPECT_TRUE(frontEnd.said(command->globalName()));
  EXPECT_TRUE(frontEnd.said(L"LINE（L）  画直线"));
}

TEST_F(DrawingCommands, HelpTakesTitlesOfPlugInsFromTheirMenuFiles) {
  const CString plugIn = file("good.so");
  std::filesystem::copy_file(ZP_BINARY_DIR "/tests/sampleplugins/good.so", plugIn.ToUtf8());
  write(file("good.menu"), "[例]\nSAMPLEHELLO 问好\n");
  ASSERT_TRUE(acrxDynamicLinker->loadModule(plugIn)) << acrxDynamicLinker->lastError().ToUtf8();
  run(L"HELP");
  EXPECT_TRUE(frontEnd.said(L"SAMPLEHELLO  问好\n"));
  acrxDynamicLinker->unloadAll();
  frontEnd.output.Empty();
  run(L"HELP");
  EXPECT_FALSE(frontEnd.said(L"问好"));
}

TEST_F(DrawingCommands, SetVarShowsAndSets) {
  run(L"SETVAR", {L"ltscale", L"50"});
  EXPECT_TRUE(frontEnd.said(L"LTSCALE = 50.0"));
  run(L"SETVAR", {L"NOSUCH"});
  EXPECT_GE(reason().Find(L"没有系统变量"), 0);
  run(L"SETVAR", {L"LTSCALE", L"0"});
  EXPECT_EQ(2u, frontEnd.refusals.size());
  run(L"SETVAR", {L"ACADVER"});
  EXPECT_TRUE(frontEnd.said(L"（只读）"));
  run(L"SETVAR", {L"?"});
  EXPECT_TRUE(frontEnd.said(L"当前图层"));
}
