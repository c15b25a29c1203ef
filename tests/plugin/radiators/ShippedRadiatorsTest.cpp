// The catalogue as shipped, held against the table of its sources.
#include <cmath>

#include "ZpPaths.h"
#include "tests/plugin/radiators/RadiatorCatalogueFixture.h"
#include "tests/support/ShippedTable.h"

namespace {

class ShippedRadiators : public RadiatorCatalogueFixture {
 protected:
  ShippedRadiators() {
    std::filesystem::create_directories(install.Root() / "HeatingData");
    std::filesystem::copy_file(std::filesystem::path(ZP_SOURCE_DIR) / "data" / kFile, install.Root() / kFile);
    EXPECT_TRUE(Reload());
  }
  // What the row gives; a blank cell is 0 in the catalogue.
  static double Number(const std::string& cell) { return cell.empty() ? 0 : std::stod(cell); }
};

TEST_F(ShippedRadiators, AreThoseOfTheTableInItsOrder) {
  const auto rows = ShippedTable("radiators.tsv");
  std::vector<std::string> expected;
  for (const auto& row : rows) expected.push_back(row.at("maker") + " " + row.at("model"));
  std::vector<std::string> shipped;
  for (const CZPRadiatorType* type : catalogue.m_arrTypes)
    for (const CZPRadiator* radiator : type->m_arrRadiators)
      shipped.push_back((type->GetName() + L" " + radiator->GetName()).ToUtf8());
  std::sort(expected.begin(), expected.end());
  std::sort(shipped.begin(), shipped.end());
  EXPECT_EQ(shipped, expected);
  EXPECT_EQ(catalogue.GetInitialRadiator()->GetName().ToUtf8(), rows.front().at("model"));
}

TEST_F(ShippedRadiators, HaveTheFiguresOfTheTableAndZeroForWhatItLeavesBlank) {
  for (const auto& row : ShippedTable("radiators.tsv")) {
    const CZPRadiator* radiator =
        catalogue.GetRadiator(CString::FromUtf8(row.at("model")), CString::FromUtf8(row.at("maker")));
    ASSERT_NE(radiator, nullptr) << row.at("model");
    const int formula = std::stoi(row.at("formula"));
    EXPECT_EQ(radiator->m_nFormula, formula) << row.at("model");
    EXPECT_EQ(radiator->m_strUnit.ToUtf8(), row.at("unit")) << row.at("model");
    EXPECT_EQ(radiator->m_dA, formula == 0 ? Number(row.at("a")) : 0) << row.at("model");
    EXPECT_EQ(radiator->m_dB, formula == 0 ? Number(row.at("b")) : 0) << row.at("model");
    EXPECT_EQ(radiator->m_dC, formula == 1 ? Number(row.at("a")) : 0) << row.at("model");
    EXPECT_EQ(radiator->m_dD, formula == 1 ? Number(row.at("b")) : 0) << row.at("model");
    EXPECT_EQ(radiator->m_dF, Number(row.at("f_m2"))) << row.at("model");
    EXPECT_EQ(radiator->m_dQs, Number(row.at("q_w"))) << row.at("model");
  }
}

TEST_F(ShippedRadiators, GiveASensibleOutputByTheirOwnFormula) {
  SZPRadCalData data;
  data.dbTg = 95;
  data.dbTh = 70;
  for (const CZPRadiatorType* type : catalogue.m_arrTypes)
    for (CZPRadiator* radiator : type->m_arrRadiators) {
      radiator->Attach(data);
      EXPECT_GT(radiator->CalculatePjSrl(), 50) << radiator->GetName().ToUtf8();
      EXPECT_LT(radiator->CalculatePjSrl(), 2000) << radiator->GetName().ToUtf8();
    }
}

TEST_F(ShippedRadiators, HaveTheCoefficientsThatTheTextbookPrintsBesideItsFormulas) {
  for (const auto& row : ShippedTable("radiators.tsv")) {
    if (row.at("k_pub").empty()) continue;
    CZPRadiator* radiator =
        catalogue.GetRadiator(CString::FromUtf8(row.at("model")), CString::FromUtf8(row.at("maker")));
    ASSERT_NE(radiator, nullptr);
    SZPRadCalData data;
    data.dbTg = 95;
    data.dbTh = 70;
    radiator->Attach(data);
    const double coefficient = radiator->CalculatePjSrl() / radiator->m_dF / 64.5;
    EXPECT_NEAR(coefficient, std::stod(row.at("k_pub")), 0.01 * coefficient) << row.at("model");
  }
}

TEST_F(ShippedRadiators, GiveAnInfiniteCountByAFormulaThatTheyHaveNoFiguresFor) {
  CZPRadiator* fixed = catalogue.GetRadiator(L"TZ4-6-5(8)", L"铸铁散热器(产品标准)");
  ASSERT_NE(fixed, nullptr);
  for (const int formula : {0, 1}) {
    fixed->m_nFormula = formula;
    EXPECT_TRUE(std::isinf(fixed->CalculateNumber())) << formula;
  }
}

TEST_F(ShippedRadiators, AreSavedAsTheyAreShipped) {
  const std::string shipped = install.Read(kFile);
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(kFile), shipped);
}

} // namespace
