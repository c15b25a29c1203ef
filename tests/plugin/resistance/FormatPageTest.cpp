// The page on the file tells every column and every flow as the program has them.
#include <cmath>

#include "ZpPaths.h"
#include "tests/plugin/resistance/ResistanceFixture.h"

namespace {

void ExpectRow(const CString& row) {
  std::ifstream file(std::filesystem::path(ZP_SOURCE_DIR) / "docs/formats/vaccal.md", std::ios::binary);
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  EXPECT_NE(page.find(row.ToUtf8()), std::string::npos) << row.ToUtf8();
}

TEST(FormatPage, TellsEveryColumnWithItsLargestDiameter) {
  for (const auto& column : resistance::kFittingColumns) {
    const bool last = std::isinf(column.largestDiameter);
    const CString diameter =
        last ? CString(L"all others") : L"d ≤ " + ZP::ftoa(column.largestDiameter, 2, true);
    const CString fallback = ZP::ftoa(CZPPipePartsCoe().*column.coefficient, 2, true);
    ExpectRow(CString(L"| `") + column.attribute + L"` | number | " + fallback + L" | " + diameter + L" |");
  }
}

TEST(FormatPage, TellsEveryFlowWithItsFormAndItsDefault) {
  for (const auto& flow : resistance::kTeeFlows)
    ExpectRow(CString(L"| `") + flow.key + L"` | " + flow.form + L" | " + flow.flow + L" | " +
              ZP::ftoa(CZPPipe3T4TCoe().*flow.coefficient, 2, true) + L" |");
}

TEST(FormatPage, TellsThePartsAndTheirAttributes) {
  for (const wchar_t* name : {resistance::kFittingPart, resistance::kFlowPart, resistance::kPicturePart,
                              resistance::kName, resistance::kFlowKey, resistance::kPicture})
    ExpectRow(CString(L"| `") + name + L"` |");
  ExpectRow(CString(L"`") + resistance::kCoefficient + L"`");
}

} // namespace
