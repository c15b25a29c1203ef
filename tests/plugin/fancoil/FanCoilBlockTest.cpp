#include "tests/plugin/fancoil/WaterFixture.h"

#include "host/afx/MessageLog.h"

namespace {

class FanCoilBlock : public WaterFixture {
 protected:
  // Puts what is in memory to the disk: the blocks go with a block's pipes.
  CString BlocksInFile() {
    EXPECT_TRUE(operation.SaveFCUConnectPipeData(L"写盘", {}));
    return InFile(L"Block", [](const VkDtDictItem& item) {
      return item.GetAttributeValue(L"name") + L":" + item.GetAttributeValue(L"BlockName") + L":" +
             ZP::ftoa(item.GetAttributeDoubleValue(L"Labelx"), 2, true) + L"," +
             ZP::ftoa(item.GetAttributeDoubleValue(L"Labely"), 2, true) + L":" +
             ZP::itoa(item.GetAttributeIntValue(L"id"));
    });
  }
  AcGePoint3d LabelPoint(const wchar_t* block) {
    AcGePoint3d point(-1.0, -2.0, -3.0);
    EXPECT_FALSE(operation.GetFCUBzInsertPoint(block, point));
    return point;
  }
};

TEST_F(FanCoilBlock, TheFirstHasIdZeroAndTheNextOneMoreThanTheHighest) {
  Read();
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"FJPG1", AcGePoint3d(1.5, 2.5, 9.0), false));
  EXPECT_EQ(BlocksInFile(), L"Block0:fjpg1:1.5,2.5:0 Block1:写盘:0,0:1 ");
}

TEST_F(FanCoilBlock, AGapInTheIdsIsNotFilled) {
  AddBlock(5, L"e");
  AddBlock(0, L"a");
  Read();
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"neu", AcGePoint3d(), true));
  EXPECT_EQ(BlocksInFile(), L"Block5:e:0,0:5 Block0:a:0,0:0 Block6:neu:0,0:6 Block7:写盘:0,0:7 ");
}

TEST_F(FanCoilBlock, NamesThatDifferInCaseOnlyAreOneBlock) {
  Read();
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"Fjpg-Ä", AcGePoint3d(1.0, 2.0, 0.0), true));
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"FJPG-ä", AcGePoint3d(3.0, 4.0, 0.0), true));
  EXPECT_EQ(LabelPoint(L"fJPG-Ä").x, 1.0);
  EXPECT_EQ(BlocksInFile(), L"Block0:fjpg-ä:1,2:0 Block1:写盘:0,0:1 ");
}

TEST_F(FanCoilBlock, AKnownBlockKeepsThePointOfItsFirstRegistration) {
  AddBlock(3, L"fjpg1", 1.5, 2.5);
  Read();
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"FJPG1", AcGePoint3d(7.5, 8.5, 0.0), true));
  const AcGePoint3d point = LabelPoint(L"fjpg1");
  EXPECT_EQ(point.x, 1.5);
  EXPECT_EQ(point.y, 2.5);
  EXPECT_EQ(point.z, 0.0);
  EXPECT_EQ(BlocksInFile(), L"Block3:fjpg1:1.5,2.5:3 Block4:写盘:0,0:4 ");
}

TEST_F(FanCoilBlock, TheNewPointOfAKnownBlockIsNotedBesideTheItems) {
  AddBlock(3, L"fjpg1", 1.5, 2.5);
  Read();
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"FJPG1", AcGePoint3d(7.5, 8.5, 0.0), true));
  BlocksInFile();
  VkDtDictionary read(nullptr, nullptr);
  ASSERT_TRUE(read.ReadFromXML(fancoil::WaterDatabasePath()));
  EXPECT_EQ(read.FindDict(L"Block")->GetAttributeDoubleValue(L"Labelx"), 7.5);
  EXPECT_EQ(read.FindDict(L"Block")->GetAttributeDoubleValue(L"Labely"), 8.5);
}

TEST_F(FanCoilBlock, RegistrationReachesTheDiskWithTheNextSaveOfPipesOnly) {
  Read();
  const std::string before = install.Read(kFile);
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"b", AcGePoint3d(), true));
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_TRUE(operation.SaveFCUConnectDuctData(L"c", {}));
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_EQ(BlocksInFile(), L"Block0:b:0,0:0 Block1:c:0,0:1 Block2:写盘:0,0:2 ");
}

TEST_F(FanCoilBlock, TheFlagHasNoEffect) {
  Read();
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"a", AcGePoint3d(1.0, 0.0, 0.0), false));
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"a", AcGePoint3d(2.0, 0.0, 0.0), true));
  EXPECT_TRUE(operation.AddOrModifyFCUBlock(L"a", AcGePoint3d(3.0, 0.0, 0.0), false));
  EXPECT_EQ(LabelPoint(L"a").x, 1.0);
}

TEST_F(FanCoilBlock, AnUnknownBlockLeavesThePointAlone) {
  AddBlock(0, L"a", 1.0, 2.0);
  Read();
  EXPECT_EQ(LabelPoint(L"b").z, -3.0);
  EXPECT_EQ(LabelPoint(L"").z, -3.0);
}

TEST_F(FanCoilBlock, OfEqualNamesTheLastGivesThePoint) {
  AddBlock(0, L"a", 1.0, 2.0);
  AddBlock(1, L"a", 3.0, 4.0);
  Read();
  EXPECT_EQ(LabelPoint(L"a").x, 3.0);
}

// Only the asked-for name is made small; a file that holds a capital is not one of ours.
TEST_F(FanCoilBlock, ANameStoredWithCapitalsIsNotFound) {
  AddBlock(0, L"Groß", 1.0, 2.0);
  Read();
  EXPECT_EQ(LabelPoint(L"Groß").x, -1.0);
}

TEST_F(FanCoilBlock, WithoutThePartNothingIsRegistered) {
  Drop(L"Block");
  Read();
  EXPECT_FALSE(operation.AddOrModifyFCUBlock(L"a", AcGePoint3d(), true));
  EXPECT_EQ(LabelPoint(L"a").x, -1.0);
  EXPECT_FALSE(operation.SaveFCUConnectPipeData(L"a", {}));
}

TEST_F(FanCoilBlock, WithTheHighestIdOfAllNoneIsLeft) {
  AddBlock(2147483647, L"a");
  Read();
  afx::ClearLoggedMessages();
  EXPECT_FALSE(operation.AddOrModifyFCUBlock(L"b", AcGePoint3d(), true));
  EXPECT_EQ(afx::LoggedMessages().size(), 1u);
  EXPECT_FALSE(operation.SaveFCUConnectPipeData(L"b", {}));
}

TEST_F(FanCoilBlock, AnIdOfMinusOneMeansNone) {
  AddBlock(-1, L"a");
  Read();
  CZPArray<SKTFCUMainPipeData> pipes;
  EXPECT_TRUE(operation.GetFCUConnectPipeData(L"a", pipes));
  EXPECT_FALSE(operation.SaveFCUConnectPipeData(L"a", pipes));
  EXPECT_FALSE(operation.SaveFCUConnectDuctData(L"a", {}));
}

TEST_F(FanCoilBlock, TakesAnyNameAndNumber) {
  Read();
  for (const wchar_t* name : {L"", L" ", L"a\"b'<&>c", L"图块\U0001F600", L"a\tb\nc"}) {
    EXPECT_TRUE(operation.AddOrModifyFCUBlock(name, AcGePoint3d(1.0 / 3.0, -1e300, 0.0), true));
    BlocksInFile();
    CKTDatabaseOperation another;
    ASSERT_TRUE(another.Initial());
    AcGePoint3d point;
    another.GetFCUBzInsertPoint(name, point);
    EXPECT_EQ(point.x, 1.0 / 3.0) << CString(name).ToUtf8();
    EXPECT_EQ(point.y, -1e300) << CString(name).ToUtf8();
  }
}

} // namespace
