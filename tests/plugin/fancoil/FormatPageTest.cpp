// The page on the catalogue's file tells every key with the type, default and unit that the program has.
#include "ZpPaths.h"
#include "plugin/fancoil/OldCatalogueFields.h"
#include "tests/plugin/fancoil/CatalogueFixture.h"

namespace {

CString Page() {
  std::ifstream file(std::filesystem::path(ZP_SOURCE_DIR) / "docs/formats/fcudata.md", std::ios::binary);
  return CString::FromUtf8(std::string{std::istreambuf_iterator<char>(file), {}});
}

CString TypeOf(const CString&) {
  return L"text";
}
CString TypeOf(int) {
  return L"integer";
}
CString TypeOf(double) {
  return L"double";
}

CString Cell(const CString& text) {
  return text.IsEmpty() ? L" |" : L" " + text + L" |";
}
CString Cell(int number) {
  return Cell(ZP::itoa(number));
}
CString Cell(double number) {
  return Cell(ZP::ftoa(number, 1, false));
}

void ExpectRow(const CString& row) {
  static const CString page = Page();
  EXPECT_GE(page.Find(row), 0) << row.ToUtf8();
}

TEST(FormatPage, TellsEveryFieldOfAModel) {
  const SKTFCUEquipmentData defaults;
  for (const EquipmentField& field : kEquipmentFields) {
    CString row = L"| `" + CString(field.key) + L"` |";
    std::visit([&](auto member) { row += Cell(TypeOf(defaults.*member)) + Cell(defaults.*member); },
               field.member);
    ExpectRow(row + Cell(CString(field.unit)));
  }
}

TEST(FormatPage, TellsEveryOldKeyWithTheFieldThatItBecomes) {
  const auto keyOf = [](auto wanted) {
    for (const EquipmentField& field : kEquipmentFields)
      if (const auto* member = std::get_if<decltype(wanted)>(&field.member); member && *member == wanted)
        return L"`" + CString(field.key) + L"`";
    return CString(L"none");
  };
  for (const OldCatalogueField& field : kOldCatalogueFields) {
    CString row = L"| `" + CString(field.key) + L"` |";
    std::visit(
        [&](auto target) {
          if constexpr (std::is_same_v<decltype(target), WidenedInteger>)
            row += Cell(CString(L"integer")) + Cell(keyOf(target.member));
          else
            row += Cell(TypeOf(SKTFCUEquipmentData().*target)) + Cell(keyOf(target));
        },
        field.target);
    ExpectRow(row);
  }
}

} // namespace
