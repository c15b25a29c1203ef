// Names and files of blocks.
#include "plugin/fancoil/dialogs/BlockFiles.h"

#include "plugin/base/Folders.h"
#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"

namespace {

class FanCoilBlockFiles : public FanCoilDialogs {};

TEST_F(FanCoilBlockFiles, StandInTheirFolder) {
  EXPECT_EQ(fancoil::BlockFile(L"FJPG7"), ZP::GetFCUDwgFilesPath() + L"FJPG7.Dwg");
}

TEST_F(FanCoilBlockFiles, AreCountedOnFromTheHighestNumberOfAnyName) {
  EXPECT_EQ(fancoil::FreeBlockName(catalogue), L"FJPG1");
  AddTwoMakers();
  catalogue.m_arrFactories.Add(nullptr);
  EXPECT_EQ(fancoil::FreeBlockName(catalogue), L"FJPG1");
  Find(L"A", L"甲")->m_data.szDwgPath = L"FJPG3";
  Find(L"A", L"乙")->m_data.szDwgPath = L"卧式暗装12";
  Find(L"B", L"甲")->m_data.szDwgPath = L"99号";
  EXPECT_EQ(fancoil::FreeBlockName(catalogue), L"FJPG13");
  Find(L"B", L"甲")->m_data.szDwgPath = L"X20.9";
  EXPECT_EQ(fancoil::FreeBlockName(catalogue), L"FJPG21");
  Find(L"B", L"甲")->m_data.szDwgPath = L"X99999999999999999999";
  EXPECT_EQ(fancoil::FreeBlockName(catalogue), L"FJPG2147483647");
}

TEST_F(FanCoilBlockFiles, KnowHowManyModelsTheyDraw) {
  AddTwoMakers();
  Find(L"A", L"甲")->m_data.szDwgPath = L"FJPG3";
  Find(L"A", L"乙")->m_data.szDwgPath = L"FJPG3";
  Find(L"B", L"甲")->m_data.szDwgPath = L"fjpg3";
  EXPECT_EQ(fancoil::CountModelsOfBlock(catalogue, L"FJPG3"), 2);
  EXPECT_EQ(fancoil::CountModelsOfBlock(catalogue, L"FJPG4"), 0);
}

} // namespace
