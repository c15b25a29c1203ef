#include "tests/plugin/fancoil/WaterFixture.h"

namespace {

using WaterSystem = WaterFixture;

TEST_F(WaterSystem, AMissingFileLeavesTheDatabaseUnusableAndTheCatalogueUsable) {
  EXPECT_FALSE(operation.Initial());
  EXPECT_EQ(operation.GetPipecoilName(1), L"");
  EXPECT_EQ(operation.GetDuctName(1), L"");
  CString layer = L"预置";
  EXPECT_FALSE(operation.GetMainPipeLayer(L"空调冷热水供水", layer));
  EXPECT_EQ(layer, L"");
  layer = L"预置";
  EXPECT_FALSE(operation.GetDuctLayer(L"送风管", layer));
  EXPECT_EQ(layer, L"");
  AcGePoint3d point(1.0, 2.0, 3.0);
  EXPECT_FALSE(operation.AddOrModifyFCUBlock(L"b", point, true));
  EXPECT_FALSE(operation.GetFCUBzInsertPoint(L"b", point));
  CZPArray<SKTFCUMainPipeData> pipes;
  CZPArray<SKTFCUDuctData> ducts;
  EXPECT_FALSE(operation.GetFCUConnectPipeData(L"b", pipes));
  EXPECT_FALSE(operation.SaveFCUConnectPipeData(L"b", pipes));
  EXPECT_FALSE(operation.GetFCUConnectDuctData(L"b", ducts));
  EXPECT_FALSE(operation.SaveFCUConnectDuctData(L"b", ducts));
  EXPECT_FALSE(install.Has(kFile));
  EXPECT_TRUE(operation.AddFactory(L"甲"));
}

TEST_F(WaterSystem, BeforeInitialNothingIsFound) {
  ASSERT_TRUE(root.SaveToXML(fancoil::WaterDatabasePath()));
  CStringArray out;
  CString layer = L"预置";
  EXPECT_FALSE(operation.GetAllPipecoilName(out));
  EXPECT_FALSE(operation.GetAllMainPipeLayer(out));
  EXPECT_FALSE(operation.GetAllRiserLayer(out));
  EXPECT_FALSE(operation.GetAllDuctName(out));
  EXPECT_FALSE(operation.GetAllDuctLayer(out));
  EXPECT_FALSE(operation.GetRiserLayer(L"空调冷热水供水", layer));
  EXPECT_EQ(layer, L"预置");
  EXPECT_EQ(out.GetSize(), 0);
}

TEST_F(WaterSystem, GetAllPipecoilNameAlwaysGivesFalseAndAppendsAllNames) {
  Read();
  CStringArray names;
  names.Add(L"先前");
  EXPECT_FALSE(operation.GetAllPipecoilName(names));
  EXPECT_EQ(Joined(names), L"先前 空调冷热水供水 空调冷热水回水 空调冷凝水 ");
}

TEST_F(WaterSystem, TheOtherPipeListsAlwaysGiveFalseToo) {
  Read();
  CStringArray mains;
  CStringArray risers;
  EXPECT_FALSE(operation.GetAllMainPipeLayer(mains));
  EXPECT_FALSE(operation.GetAllRiserLayer(risers));
  EXPECT_EQ(Joined(mains), L"供水干管 回水干管 冷凝水干管 ");
  EXPECT_EQ(Joined(risers), L"供水立管 回水立管 冷凝水立管 ");
}

TEST_F(WaterSystem, GetAllDuctNameAndLayerGiveTrue) {
  Read();
  CStringArray names;
  CStringArray layers;
  EXPECT_TRUE(operation.GetAllDuctName(names));
  EXPECT_TRUE(operation.GetAllDuctLayer(layers));
  EXPECT_EQ(Joined(names), L"送风管 回风管 新风管 ");
  EXPECT_EQ(Joined(layers), L"送风 回风 新风 ");
}

TEST_F(WaterSystem, ListsOfAnEmptyPartAddNothing) {
  root.FindDict(L"PipeSystem")->Reset();
  root.FindDict(L"DuctSystem")->Reset();
  Read();
  CStringArray out;
  EXPECT_FALSE(operation.GetAllPipecoilName(out));
  EXPECT_TRUE(operation.GetAllDuctName(out));
  EXPECT_EQ(out.GetSize(), 0);
}

TEST_F(WaterSystem, ADatabaseWithoutThePartsFindsNothing) {
  for (const wchar_t* part : {L"PipeSystem", L"DuctSystem", L"Block", L"PipeConnection", L"DuctConnection"})
    Drop(part);
  Read();
  CStringArray out;
  CString layer = L"预置";
  EXPECT_FALSE(operation.GetAllPipecoilName(out));
  EXPECT_FALSE(operation.GetAllMainPipeLayer(out));
  EXPECT_FALSE(operation.GetAllRiserLayer(out));
  EXPECT_FALSE(operation.GetAllDuctName(out));
  EXPECT_FALSE(operation.GetAllDuctLayer(out));
  EXPECT_EQ(out.GetSize(), 0);
  EXPECT_EQ(operation.GetPipecoilName(1), L"");
  EXPECT_EQ(operation.GetDuctName(1), L"");
  EXPECT_FALSE(operation.GetRiserLayer(L"送风管", layer));
  EXPECT_EQ(layer, L"预置");
  EXPECT_FALSE(operation.GetMainPipeLayer(L"送风管", layer));
}

TEST_F(WaterSystem, NamesAreFoundByTheNumberInTheAttributeName) {
  AddPipeSystem(17, L"后来的", L"a", L"b");
  Read();
  EXPECT_EQ(operation.GetPipecoilName(7), L"空调冷凝水");
  EXPECT_EQ(operation.GetPipecoilName(17), L"后来的");
  EXPECT_EQ(operation.GetPipecoilName(3), L"");
  EXPECT_EQ(operation.GetPipecoilName(-1), L"");
  EXPECT_EQ(operation.GetDuctName(5), L"新风管");
  EXPECT_EQ(operation.GetDuctName(7), L"");
}

TEST_F(WaterSystem, LayersAreFoundByTheExactNameOfTheSystem) {
  AddPipeSystem(8, L"LG", L"大写干管", L"大写立管");
  AddDuctSystem(8, L"XF", L"大写");
  Read();
  CString layer;
  EXPECT_TRUE(operation.GetMainPipeLayer(L"空调冷热水回水", layer));
  EXPECT_EQ(layer, L"回水干管");
  EXPECT_TRUE(operation.GetRiserLayer(L"空调冷凝水", layer));
  EXPECT_EQ(layer, L"冷凝水立管");
  EXPECT_TRUE(operation.GetDuctLayer(L"新风管", layer));
  EXPECT_EQ(layer, L"新风");
  EXPECT_TRUE(operation.GetMainPipeLayer(L"LG", layer));
  EXPECT_FALSE(operation.GetMainPipeLayer(L"lg", layer));
  EXPECT_FALSE(operation.GetDuctLayer(L"xf", layer));
}

TEST_F(WaterSystem, AnUnknownSystemEmptiesTheLayerButNotTheRisers) {
  Read();
  CString layer = L"预置";
  EXPECT_FALSE(operation.GetRiserLayer(L"无", layer));
  EXPECT_EQ(layer, L"预置");
  EXPECT_FALSE(operation.GetMainPipeLayer(L"无", layer));
  EXPECT_EQ(layer, L"");
  layer = L"预置";
  EXPECT_FALSE(operation.GetDuctLayer(L"无", layer));
  EXPECT_EQ(layer, L"");
}

TEST_F(WaterSystem, OfSystemsOfOneNameTheFirstCounts) {
  AddPipeSystem(9, L"空调冷凝水", L"另一干管", L"另一立管");
  Read();
  CString layer;
  EXPECT_TRUE(operation.GetMainPipeLayer(L"空调冷凝水", layer));
  EXPECT_EQ(layer, L"冷凝水干管");
}

TEST_F(WaterSystem, CopiesShareTheDictionary) {
  Read();
  CKTDatabaseOperation copy(operation);
  CKTDatabaseOperation assigned;
  assigned = operation;
  EXPECT_TRUE(copy.AddOrModifyFCUBlock(L"b", AcGePoint3d(1.5, 2.5, 0.0), true));
  AcGePoint3d point;
  assigned.GetFCUBzInsertPoint(L"b", point);
  EXPECT_EQ(point.x, 1.5);
}

TEST_F(WaterSystem, ASecondInitialReadsTheFileAnewForThisObjectOnly) {
  Read();
  ASSERT_TRUE(operation.AddOrModifyFCUBlock(L"b", AcGePoint3d(1.5, 2.5, 0.0), true));
  CKTDatabaseOperation copy(operation);
  EXPECT_TRUE(operation.Initial());
  AcGePoint3d fresh;
  operation.GetFCUBzInsertPoint(L"b", fresh);
  EXPECT_EQ(fresh.x, 0.0);
  AcGePoint3d old;
  copy.GetFCUBzInsertPoint(L"b", old);
  EXPECT_EQ(old.x, 1.5);
}

TEST_F(WaterSystem, AFailingSecondInitialFindsNothingAnyMore) {
  Read();
  std::filesystem::remove(install.Root() / kFile);
  EXPECT_FALSE(operation.Initial());
  EXPECT_EQ(operation.GetPipecoilName(1), L"");
  EXPECT_FALSE(operation.AddOrModifyFCUBlock(L"b", AcGePoint3d(), true));
}

TEST_F(WaterSystem, AFileCutOffAtAnyByteIsReadWholeOrNotAtAll) {
  ASSERT_TRUE(root.SaveToXML(fancoil::WaterDatabasePath()));
  const std::string text = install.Read(kFile);
  int whole = 0;
  for (std::size_t length = 0; length < text.size(); ++length) {
    std::filesystem::remove(install.Root() / kFile);
    install.Write(kFile, text.substr(0, length));
    CKTDatabaseOperation& each = operation;
    CStringArray names;
    if (each.Initial()) {
      ++whole;
      each.GetAllPipecoilName(names);
      EXPECT_EQ(names.GetSize(), 3) << length;
    }
  }
  EXPECT_LE(whole, 1); // without the last line feed
}

} // namespace
