// PipeLimit.idp as shipped, held against the table of its sources.
#include "ZpPaths.h"
#include "tests/plugin/pipes/limits/LimitFixture.h"
#include "tests/support/ShippedTable.h"

namespace {

class ShippedLimits : public LimitFixture {
 protected:
  ShippedLimits() {
    std::filesystem::create_directories((install.Root() / kFile).parent_path());
    std::filesystem::copy_file(std::filesystem::path(ZP_SOURCE_DIR) / "data" / kFile, install.Root() / kFile);
    EXPECT_EQ(Reload(), 1);
    EXPECT_TRUE(afx::LoggedMessages().empty());
  }
};

TEST_F(ShippedLimits, AreThoseOfClosedWaterSystemsInAscendingOrder) {
  int index = 0;
  for (const auto& row : ShippedTable("velocity.tsv")) {
    if (row.at("system") != "空调水-闭式") continue;
    ASSERT_LT(index, table.m_arrLimits.GetSize());
    const CZPPipeLimit& limit = *table.m_arrLimits[index++];
    EXPECT_EQ(limit.GetName().ToUtf8(), row.at("dn"));
    EXPECT_EQ(limit.m_velocity.dbMin, std::stod(row.at("v_min"))) << row.at("dn");
    EXPECT_EQ(limit.m_velocity.dbMax, std::stod(row.at("v_max"))) << row.at("dn");
    EXPECT_EQ(limit.m_friction.dbMin, std::stod(row.at("r_min_pa_m"))) << row.at("dn");
    EXPECT_EQ(limit.m_friction.dbMax, std::stod(row.at("r_max_pa_m"))) << row.at("dn");
  }
  EXPECT_EQ(table.m_arrLimits.GetSize(), index);
  EXPECT_EQ(Names(), L"15 20 25 32 40 50 65 80 100 125 150 200 250 300 350 400");
}

TEST_F(ShippedLimits, AreFoundForASizeBetweenTwoOfThem) {
  EXPECT_EQ(table.GetPipeLimit(L"70", 0), nullptr);
  EXPECT_EQ(table.GetPipeLimit(L"70", 1)->GetName(), L"65");
  EXPECT_EQ(table.GetPipeLimit(L"20.0", 1)->GetName(), L"20");
  EXPECT_EQ(table.GetPipeLimit(L"600", 1)->GetName(), L"400");
}

TEST_F(ShippedLimits, StayByteForByteWhenReadAndSavedUnchanged) {
  const std::string shipped = install.Read(kFile);
  ASSERT_NE(table.SaveData(), 0);
  EXPECT_EQ(install.Read(kFile), shipped);
}

} // namespace
