#include <algorithm>
#include <filesystem>
#include <fstream>
#include <vector>

#include <gtest/gtest.h>

#include "ZpPaths.h"
#include "host/afx/CInvalidArgException.h"
#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/radiators/CorrectionTables.h"
#include "tests/support/ShippedTable.h"
#include "tests/support/TempInstall.h"

namespace {

using radiators::CorrectionTable;
using radiators::FindCorrectionTable;

double ValueAt(int table, int row, int column) {
  return afx::wcstod(FindCorrectionTable(table)->At(row, column).text, nullptr);
}

std::vector<CString> RowOf(int table, int row) {
  std::vector<CString> texts;
  for (int column = 0; column < FindCorrectionTable(table)->columns; ++column)
    texts.emplace_back(FindCorrectionTable(table)->At(row, column).text);
  return texts;
}

TEST(CorrectionTables, AreFourWithTheirTitlesAndSizes) {
  struct Expected {
    const wchar_t* title;
    int rows, columns;
    std::vector<int> fixedRows;
  };
  const Expected expected[] = {{L"散热器安装长度修正系数β1", 3, 8, {0, 1}},
                               {L"散热器支管连接方式修正系数β2", 6, 6, {0, 3}},
                               {L"散热器安装形式修正系数β3", 5, 2, {0}},
                               {L"进入散热器流量修正系数β4", 4, 8, {0, 1}}};
  ASSERT_EQ(radiators::kCorrectionTableCount, 4);
  for (int index = 0; index < 4; ++index) {
    const CorrectionTable& table = *FindCorrectionTable(index);
    EXPECT_EQ(CString(table.title), expected[index].title);
    EXPECT_EQ(table.rows, expected[index].rows);
    EXPECT_EQ(table.columns, expected[index].columns);
    EXPECT_EQ(std::vector<int>(table.fixedRows.begin(), table.fixedRows.end()), expected[index].fixedRows);
    EXPECT_EQ(table.cells.size(), static_cast<std::size_t>(table.rows * table.columns));
    EXPECT_EQ(table.columnWidths.size(), static_cast<std::size_t>(table.columns));
    EXPECT_EQ(table.rowHeights.size(), static_cast<std::size_t>(table.rows));
  }
  EXPECT_EQ(FindCorrectionTable(-1), nullptr);
  EXPECT_EQ(FindCorrectionTable(4), nullptr);
}

TEST(CorrectionTables, HaveTheirValuesAsTheyAreWritten) {
  using Row = std::vector<CString>;
  EXPECT_EQ(RowOf(0, 1),
            (Row{L"每组片数或长度", L"＜6片", L"6～10", L"11～20", L"＞20", L"≤600", L"800", L"≥1000"}));
  EXPECT_EQ(RowOf(0, 2), (Row{L"β1", L"0.95", L"1", L"1.05", L"1.1", L"0.95", L"0.92", L"1"}));
  EXPECT_EQ(RowOf(1, 1), (Row{L"各类柱形", L"1", L"1.009", L"-", L"-", L"-"}));
  EXPECT_EQ(RowOf(1, 2), (Row{L"钢铝复合柱翼型", L"1", L"0.96", L"1.01", L"1.14", L"1.08"}));
  EXPECT_EQ(RowOf(1, 4), (Row{L"各类柱形", L"1.251", L"-", L"1.39", L"1.39", L""}));
  EXPECT_EQ(RowOf(1, 5), (Row{L"钢铝复合柱翼型", L"1.1", L"1.38", L"1.39", L"-", L""}));
  EXPECT_EQ(RowOf(2, 0), (Row{L"安装形式", L"β3"}));
  EXPECT_EQ(RowOf(2, 1), (Row{L"装在墙体的凹槽内（半暗装）散热器上部距墙距离为100mm", L"1.06"}));
  EXPECT_EQ(RowOf(2, 2), (Row{L"明装但散热器上部有窗台板覆盖，散热器距离台板高度为150mm", L"1.02"}));
  EXPECT_EQ(RowOf(2, 3), (Row{L"装在罩内，上部敞开，下部距地150mm", L"0.95"}));
  EXPECT_EQ(RowOf(2, 4), (Row{L"装在罩内，上部、下部开口，开口高度均为150mm", L"1.04"}));
  EXPECT_EQ(RowOf(3, 1), (Row{L"", L"1", L"2", L"3", L"4", L"5", L"6", L"7"}));
  EXPECT_EQ(RowOf(3, 2), (Row{L"柱型、柱翼型、多翼型、长翼型、镶翼型", L"1", L"0.9", L"0.86", L"0.85",
                              L"0.83", L"0.83", L"0.82"}));
  EXPECT_EQ(RowOf(3, 3), (Row{L"扁管型散热器", L"1", L"0.94", L"0.93", L"0.92", L"0.91", L"0.9", L"0.9"}));
}

TEST(CorrectionTables, HaveTheirHeadsOverMergedCells) {
  const CorrectionTable& length = *FindCorrectionTable(0);
  EXPECT_EQ(CString(length.At(0, 0).text), L"安装形式");
  EXPECT_EQ(CString(length.At(0, 1).text), L"各种铸铁及钢制柱型");
  EXPECT_EQ(CString(length.At(0, 5).text), L"钢制板型及扁管型");
  const CorrectionTable& flow = *FindCorrectionTable(3);
  EXPECT_EQ(CString(flow.At(0, 0).text), L"散热器类型");
  EXPECT_EQ(CString(flow.At(0, 1).text), L"流量增加倍数");
  const auto blocks = [](const CorrectionTable& table) {
    std::vector<std::vector<int>> all;
    for (const auto& block : table.merged)
      all.push_back({block.row, block.column, block.rows, block.columns});
    return all;
  };
  EXPECT_EQ(blocks(length), (std::vector<std::vector<int>>{{0, 1, 1, 4}, {0, 5, 1, 3}}));
  EXPECT_EQ(blocks(flow), (std::vector<std::vector<int>>{{0, 0, 2, 1}, {0, 1, 1, 7}}));
  EXPECT_TRUE(blocks(*FindCorrectionTable(1)).empty());
  EXPECT_TRUE(blocks(*FindCorrectionTable(2)).empty());
}

TEST(CorrectionTables, LeaveTheCellsUnderAMergedHeadEmpty) {
  for (int index = 0; index < radiators::kCorrectionTableCount; ++index) {
    const CorrectionTable& table = *FindCorrectionTable(index);
    for (const auto& block : table.merged)
      for (int row = block.row; row < block.row + block.rows; ++row)
        for (int column = block.column; column < block.column + block.columns; ++column)
          EXPECT_EQ(CString(table.At(row, column).text).IsEmpty(),
                    row != block.row || column != block.column);
  }
}

TEST(CorrectionTables, HaveWidthsAndHeightsInPixels) {
  const auto widths = [](int index) {
    const auto span = FindCorrectionTable(index)->columnWidths;
    return std::vector<int>(span.begin(), span.end());
  };
  const auto heights = [](int index) {
    const auto span = FindCorrectionTable(index)->rowHeights;
    return std::vector<int>(span.begin(), span.end());
  };
  EXPECT_EQ(widths(0), (std::vector<int>{160, 80, 80, 80, 80, 80, 80, 80}));
  EXPECT_EQ(widths(1), std::vector<int>(6, 120));
  EXPECT_EQ(widths(2), (std::vector<int>{400, 80}));
  EXPECT_EQ(widths(3), (std::vector<int>{280, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(heights(0), std::vector<int>(3, 25));
  EXPECT_EQ(heights(1), (std::vector<int>{55, 0, 0, 55, 0, 0}));
}

TEST(CorrectionTables, ShowNinePicturesInTheFixedRowsOfTheSecond) {
  const CorrectionTable& table = *FindCorrectionTable(1);
  const TempInstall install;
  std::vector<CString> pictures;
  for (int row = 0; row < table.rows; ++row)
    for (int column = 0; column < table.columns; ++column)
      if (table.At(row, column).isPicture) {
        EXPECT_TRUE(row == 0 || row == 3);
        pictures.emplace_back(table.At(row, column).text);
      }
  EXPECT_EQ(pictures,
            (std::vector<CString>{L"β2_1_1.BMP", L"β2_1_2.BMP", L"β2_1_3.BMP", L"β2_1_4.BMP", L"β2_1_5.BMP",
                                  L"β2_2_1.BMP", L"β2_2_2.BMP", L"β2_2_3.BMP", L"β2_2_4.BMP"}));
  EXPECT_EQ(CString(table.At(3, 5).text), L"");
  EXPECT_EQ(afx::NativePath(radiators::CorrectionPicturePath(L"β2_1_1.BMP")),
            (install.Root() / "HeatingData/SrqPicture/β2_1_1.BMP").string());
  for (const int index : {0, 2, 3})
    for (const auto& cell : FindCorrectionTable(index)->cells) EXPECT_FALSE(cell.isPicture);
}

// The bitmap of the shipped data, which the build renders; empty when there is none.
std::string ShippedPicture(const wchar_t* name) {
  const auto path =
      std::filesystem::path(ZP_BINARY_DIR) / "data/HeatingData/SrqPicture" / CString(name).ToUtf8();
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

int NumberAt(const std::string& bytes, std::size_t at) {
  int number = 0;
  for (std::size_t i = 0; i < 4; ++i) number |= static_cast<unsigned char>(bytes[at + i]) << (8 * i);
  return number;
}

TEST(CorrectionTables, HaveEachPictureInTheShippedDataAsABitmapThatFitsItsCell) {
  constexpr std::size_t kHead = 54;
  std::vector<std::string> pictures;
  for (const auto& cell : FindCorrectionTable(1)->cells) {
    if (!cell.isPicture) continue;
    const std::string bytes = ShippedPicture(cell.text);
    const std::string name = CString(cell.text).ToUtf8();
    ASSERT_GT(bytes.size(), kHead) << name;
    EXPECT_EQ(bytes.substr(0, 2), "BM") << name;
    EXPECT_EQ(NumberAt(bytes, 2), static_cast<int>(bytes.size())) << name;
    EXPECT_EQ(NumberAt(bytes, 10), static_cast<int>(kHead)) << name;
    EXPECT_EQ(NumberAt(bytes, 18), 120) << name; // pixels, as the column is wide
    EXPECT_EQ(NumberAt(bytes, 22), 55) << name;  // and the row is high
    EXPECT_EQ(NumberAt(bytes, 28), 24) << name;  // bits a pixel
    EXPECT_EQ(bytes.size(), kHead + 120 * 55 * 3) << name;
    // Blue, green, red: the supply is red, the return blue, what lies between is white.
    for (const char* colour : {"\x00\x00\xC0", "\xC0\x40\x00", "\xFF\xFF\xFF"})
      EXPECT_NE(bytes.find(std::string(colour, 3), kHead), std::string::npos) << name;
    pictures.push_back(bytes);
  }
  std::sort(pictures.begin(), pictures.end());
  EXPECT_EQ(pictures.size(), 9u);
  EXPECT_EQ(std::unique(pictures.begin(), pictures.end()), pictures.end()) << "two pictures are the same";
}

TEST(CorrectionTables, TellLabelsFromValues) {
  const CorrectionTable& table = *FindCorrectionTable(1);
  EXPECT_TRUE(table.IsLabel(0, 1));
  EXPECT_TRUE(table.IsLabel(3, 4));
  EXPECT_TRUE(table.IsLabel(2, 0));
  EXPECT_FALSE(table.IsLabel(1, 1));
  EXPECT_FALSE(table.IsLabel(5, 5));
}

TEST(CorrectionTables, RaiseAnErrorForACellThatTheyLack) {
  const CorrectionTable& table = *FindCorrectionTable(2);
  EXPECT_THROW(table.At(-1, 0), CInvalidArgException);
  EXPECT_THROW(table.At(5, 0), CInvalidArgException);
  EXPECT_THROW(table.At(0, -1), CInvalidArgException);
  EXPECT_THROW(table.At(0, 2), CInvalidArgException);
}

TEST(CorrectionTables, PassOnTheTextOfTheChosenCell) {
  EXPECT_EQ(CString(FindCorrectionTable(2)->At(3, 1).text), L"0.95");
  EXPECT_EQ(ZP::ftoa(ValueAt(1, 1, 2), 2, false), L"1.01"); // 1.009 in a field of two decimals
  EXPECT_EQ(ValueAt(1, 1, 3), 0);                           // a dash
  EXPECT_EQ(ValueAt(1, 4, 0), 0);                           // a label
}

TEST(CorrectionTables, HaveNoFlowFactorBelow082) {
  for (int row = 2; row < 4; ++row)
    for (int column = 1; column < 8; ++column) EXPECT_GE(ValueAt(3, row, column), 0.82);
}

// The factor that the table of sources has for a name and, where given, a kind of radiator and a first count.
double Source(const char* factor, const char* name, const char* kind, const char* from) {
  for (const auto& row : ShippedTable("radiator_factors.tsv"))
    if (row.at("factor") == factor && row.at("name") == name && row.at("for") == kind &&
        row.at("from") == from)
      return std::stod(row.at("value"));
  ADD_FAILURE() << factor << " " << name << " " << kind << " " << from;
  return 0;
}

TEST(CorrectionTables, AgreeWithTheirSources) {
  const char* const sections[] = {"1", "6", "11", "21"};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(ValueAt(0, 2, i + 1), Source("beta1", "片数", "", sections[i]));
  EXPECT_EQ(ValueAt(1, 1, 1), Source("beta2", "同侧上进下出", "M-132型", ""));
  EXPECT_EQ(ValueAt(1, 1, 2), Source("beta2", "异侧上进下出", "M-132型", ""));
  EXPECT_EQ(ValueAt(1, 4, 1), Source("beta2", "异侧下进下出", "M-132型", ""));
  EXPECT_NEAR(ValueAt(1, 4, 3), Source("beta2", "异侧下进上出", "M-132型", ""), 0.01);
  EXPECT_NEAR(ValueAt(1, 4, 4), Source("beta2", "同侧下进上出", "M-132型", ""), 0.01);
  const char* const installations[] = {"半暗装于墙龛,上部距墙100mm", "明装,上有窗台板,距板150mm",
                                       "装在罩内,上部敞开,下部距地150mm", "装在罩内,上下开口各150mm"};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(ValueAt(2, i + 1, 1), Source("beta3", installations[i], "", ""));
  for (int multiple = 1; multiple <= 7; ++multiple) {
    const std::string text = std::to_string(multiple);
    EXPECT_EQ(ValueAt(3, 2, multiple), Source("beta4", "流量倍数", "柱型/柱翼型/长翼型", text.c_str()));
    EXPECT_EQ(ValueAt(3, 3, multiple), Source("beta4", "流量倍数", "扁管型", text.c_str()));
  }
}

} // namespace
