// VacCal.xml as shipped, held against the tables of its sources, and the pictures that it names.
#include "ZpPaths.h"
#include "plugin/resistance/CZPLocalResistanceSettings.h"
#include "tests/plugin/resistance/ResistanceFixture.h"
#include "tests/support/ShippedTable.h"

namespace {

class ShippedResistance : public ResistanceFixture {
 protected:
  ShippedResistance() {
    std::filesystem::copy(std::filesystem::path(ZP_SOURCE_DIR) / "data", install.Root(),
                          std::filesystem::copy_options::recursive);
    EXPECT_EQ(Reload(), 0);
  }
  // What the row gives; a blank cell is 0 in the file.
  static double Number(const std::string& cell) { return cell.empty() ? 0 : std::stod(cell); }
};

TEST_F(ShippedResistance, HasTheFittingsOfTheTableInItsOrder) {
  const auto rows = ShippedTable("fittings.tsv");
  ASSERT_EQ(store.m_arrPartsCoe.GetSize(), static_cast<int>(rows.size()));
  int i = 0;
  for (const auto& row : rows) {
    const CZPPipePartsCoe& fitting = store.m_arrPartsCoe[i++];
    EXPECT_EQ(fitting.szName.ToUtf8(), row.at("name"));
    for (const auto& column : resistance::kFittingColumns)
      EXPECT_EQ(fitting.*column.coefficient, Number(row.at(CString(column.attribute).ToUtf8())))
          << row.at("name") << " " << CString(column.attribute).ToUtf8();
  }
}

TEST_F(ShippedResistance, HasTheFlowsOfTheTable) {
  const auto rows = ShippedTable("tees.tsv");
  EXPECT_EQ(rows.size(), std::size(resistance::kTeeFlows));
  for (const auto& row : rows)
    for (const auto& flow : resistance::kTeeFlows) {
      if (CString(flow.key).ToUtf8() != row.at("direction")) continue;
      EXPECT_EQ(store.m_coe3T4T.*flow.coefficient, Number(row.at("xi"))) << row.at("direction");
    }
}

// Of the cock the source has no figures above DN32.
TEST_F(ShippedResistance, HasNothingForWhatItsSourceLeavesBlank) {
  CZPPipePartsCoe cock;
  ASSERT_EQ(store.GetPipePartsCoe(L"旋塞", cock), 1);
  EXPECT_EQ(cock.GetCoe(L"DN32"), 2);
  EXPECT_EQ(cock.GetCoe(L"DN40"), 0);
  EXPECT_EQ(cock.GetCoe(L"DN50"), 0);
  int blank = 0;
  for (const CZPPipePartsCoe& fitting : store.m_arrPartsCoe)
    for (const auto& column : resistance::kFittingColumns) blank += fitting.*column.coefficient == 0;
  EXPECT_EQ(blank, 2);
}

TEST_F(ShippedResistance, HasAPictureForEachForm) {
  for (const auto& flow : resistance::kTeeFlows) {
    CString path;
    ASSERT_EQ(store.GetBmp(flow.form, path), 1) << CString(flow.form).ToUtf8();
    std::ifstream file(afx::NativePath(path), std::ios::binary);
    const std::string drawing{std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(drawing.starts_with("<svg ")) << path.ToUtf8();
    // The first word of the title after the kind of tee tells the form.
    const CString form = flow.form;
    const CString told = form.Left(1) == L"斜" ? L"斜三通" + form.Mid(1)
                         : form == L"4通"      ? CString(L"四通")
                                               : L"三通" + form;
    EXPECT_NE(drawing.find("<title>" + told.ToUtf8() + "："), std::string::npos) << path.ToUtf8();
  }
}

TEST_F(ShippedResistance, IsSavedAsItIsShipped) {
  const std::string shipped = install.Read(kFile);
  ASSERT_EQ(store.SaveData(), 1);
  EXPECT_EQ(install.Read(kFile), shipped);
}

} // namespace
