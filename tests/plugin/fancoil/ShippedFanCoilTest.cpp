// The fan-coil catalogue and the water-system database as shipped, read as the plug-in reads them.
#include "ZpPaths.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "tests/plugin/fancoil/CatalogueFixture.h"

namespace {

class ShippedFanCoils : public CatalogueFixture {
 protected:
  ShippedFanCoils() {
    std::filesystem::copy(std::filesystem::path(ZP_SOURCE_DIR) / "data", install.Root(),
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
  }
};

TEST_F(ShippedFanCoils, AreOneSeriesOfThirtyNineModels) {
  ASSERT_EQ(Reload(), 1);
  CStringArray makers;
  catalogue.GetAllFactoryName(makers);
  ASSERT_EQ(makers.GetSize(), 1);
  EXPECT_EQ(makers[0], L"国标系列");
  EXPECT_EQ(catalogue.m_arrFactories[0]->m_arrEquipments.GetSize(), 39);
  const SKTFCUEquipmentData& first = catalogue.GetInitialFCU()->m_data;
  EXPECT_EQ(first.szMode, L"FP-34");
  EXPECT_EQ(first.szInstallStyle, L"暗装");
  EXPECT_EQ(first.szStructStyle, L"卧式");
  EXPECT_EQ(first.dbAirFlowH, 340.0);
  EXPECT_EQ(first.dbCTHCapacity, 1.8);
  EXPECT_EQ(first.dbPower, 37.0);
  EXPECT_EQ(first.dbLength, 700.0);
}

TEST_F(ShippedFanCoils, TakeTheirWaterFlowFromTheCoolingAtFiveKelvin) {
  ASSERT_EQ(Reload(), 1);
  for (const CFCUEquipment* model : catalogue.m_arrFactories[0]->m_arrEquipments)
    EXPECT_NEAR(model->m_data.dbWaterFlow, model->m_data.dbCTHCapacity / (4.187 * 5.0), 0.0006)
        << model->GetName().ToUtf8();
}

TEST_F(ShippedFanCoils, StayAsTheyAreWhenTheCatalogueIsSaved) {
  const std::string shipped = install.Read(kFile);
  ASSERT_EQ(Reload(), 1);
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_EQ(install.Read(kFile), shipped);
}

TEST_F(ShippedFanCoils, StandBesideSystemsWhoseLayersTheSchemeHas) {
  CKTDatabaseOperation operation;
  ASSERT_TRUE(operation.Initial());
  CZPManagerLayer& scheme = *CZPManagerLayer::GetInstance();
  ASSERT_TRUE(scheme.ReadData(L"默认方案"));
  CStringArray pipes;
  operation.GetAllPipecoilName(pipes);
  EXPECT_EQ(pipes.GetSize(), 13);
  CStringArray ducts;
  EXPECT_TRUE(operation.GetAllDuctName(ducts));
  EXPECT_EQ(ducts.GetSize(), 9);
  CStringArray layers;
  operation.GetAllMainPipeLayer(layers);
  operation.GetAllRiserLayer(layers);
  EXPECT_TRUE(operation.GetAllDuctLayer(layers));
  ASSERT_EQ(layers.GetSize(), 35);
  for (const CString& layer : layers) EXPECT_TRUE(scheme.IsExist(layer)) << layer.ToUtf8();
}

TEST_F(ShippedFanCoils, TakeABlockWithItsConnections) {
  CKTDatabaseOperation operation;
  ASSERT_TRUE(operation.Initial());
  SKTFCUMainPipeData pipe;
  pipe.szPipeName = L"空调冷凝水";
  CZPArray<SKTFCUMainPipeData> pipes;
  pipes.Add(pipe);
  EXPECT_TRUE(operation.SaveFCUConnectPipeData(L"FJPG1", pipes));
  CKTDatabaseOperation another;
  ASSERT_TRUE(another.Initial());
  CZPArray<SKTFCUMainPipeData> read;
  EXPECT_TRUE(another.GetFCUConnectPipeData(L"FJPG1", read));
  ASSERT_EQ(read.GetSize(), 1);
  EXPECT_EQ(read[0].szPipeName, L"空调冷凝水");
}

} // namespace
