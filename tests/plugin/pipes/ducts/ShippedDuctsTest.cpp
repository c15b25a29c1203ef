// The duct half of PipeMaterial.idp as shipped, held against the tables of its sources.
#include <algorithm>

#include "ZpPaths.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "tests/plugin/pipes/ducts/DuctFixture.h"
#include "tests/support/ShippedTable.h"

namespace {

class ShippedDucts : public DuctFixture {
 protected:
  ShippedDucts() {
    std::filesystem::create_directories((install.Root() / kFile).parent_path());
    std::filesystem::copy_file(std::filesystem::path(ZP_SOURCE_DIR) / "data" / kFile, install.Root() / kFile);
    EXPECT_TRUE(Reload());
    EXPECT_TRUE(afx::LoggedMessages().empty());
  }
  // The thickness of galvanised steel, or -1 where the catalogue has none.
  double Thickness(double side) const {
    double thickness = -1;
    catalogue.GetInitialDuctMaterial()->GetThickness(side, thickness);
    return thickness;
  }
};

TEST_F(ShippedDucts, AreOfTheMaterialsOfTheTableInItsOrder) {
  const auto rows = ShippedTable("duct_materials.tsv");
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), static_cast<int>(rows.size()));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const CZPDuctMaterial& material = *catalogue.m_arrMaterials[static_cast<int>(i)];
    EXPECT_EQ(material.GetName().ToUtf8(), rows[i].at("material"));
    EXPECT_EQ(material.m_dRoughness, std::stod(rows[i].at("roughness_mm"))) << rows[i].at("material");
  }
  EXPECT_EQ(catalogue.GetInitialDuctMaterial()->GetName(), L"镀锌钢板");
}

TEST_F(ShippedDucts, HaveWallsOfGalvanisedSteelByTheColumnForLowPressureAndNoOthers) {
  int bands = 0;
  for (const auto& row : ShippedTable("duct_thickness.tsv")) {
    if (row.at("standard") != "GB 50243-2016" || row.at("pressure_class") != "微压、低压") continue;
    ++bands;
    const double thickness = std::stod(row.at("thickness_mm"));
    const double over = std::stod(row.at("over_mm"));
    const double upTo = std::stod(row.at("upto_mm"));
    EXPECT_EQ(Thickness(over + 1), thickness);
    EXPECT_EQ(Thickness(upTo), thickness); // though the next band begins there
  }
  EXPECT_EQ(bands, 7);
  EXPECT_EQ(Thickness(4001), -1);
  for (const CZPDuctMaterial* material : catalogue.m_arrMaterials)
    EXPECT_EQ(material->m_arrThickness.GetSize(), material == catalogue.GetInitialDuctMaterial() ? 7 : 0);
}

TEST_F(ShippedDucts, HaveTheSizesOfTheTableSorted) {
  // Neither list depends on the sort under test: width and height are numbers of the table.
  std::vector<std::pair<double, double>> rects;
  std::vector<std::pair<double, double>> circles;
  for (const auto& row : ShippedTable("ducts.tsv")) {
    if (row.at("kind") == "rect") rects.emplace_back(std::stod(row.at("a_mm")), std::stod(row.at("b_mm")));
    if (row.at("kind") == "round") circles.emplace_back(std::stod(row.at("a_mm")), 0);
  }
  std::sort(rects.begin(), rects.end());
  std::sort(circles.begin(), circles.end());
  EXPECT_EQ(rects.size(), 52u);
  EXPECT_EQ(circles.size(), 53u);
  const auto shipped = [](const pipes::OwnedElements<CZPDuctDiameter>& list) {
    std::vector<std::pair<double, double>> sizes;
    for (const CZPDuctDiameter* size : list) sizes.emplace_back(size->m_dWidth, size->m_dHeight);
    return sizes;
  };
  EXPECT_EQ(shipped(catalogue.m_arrRectDiameters), rects);
  EXPECT_EQ(shipped(catalogue.m_arrCircleDiameters), circles);
}

TEST_F(ShippedDucts, HaveAWallForEverySizeOfGalvanisedSteel) {
  for (const auto* list : {&catalogue.m_arrRectDiameters, &catalogue.m_arrCircleDiameters})
    for (const CZPDuctDiameter* size : *list) EXPECT_GT(Thickness(size->m_dWidth), 0) << size->m_dWidth;
}

TEST_F(ShippedDucts, StayByteForByteWhenEitherHalfIsReadAndSavedUnchanged) {
  const std::string shipped = install.Read(kFile);
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(kFile), shipped);
  CZPPipeMaterialManager& pipeCatalogue = *CZPPipeMaterialManager::GetInstance();
  pipes::DestroyElements(pipeCatalogue.m_arrMaterials);
  EXPECT_TRUE(pipeCatalogue.ReadData());
  EXPECT_TRUE(pipeCatalogue.SaveData());
  EXPECT_EQ(install.Read(kFile), shipped);
  pipes::DestroyElements(pipeCatalogue.m_arrMaterials);
}

} // namespace
