// The pages on the two files tell every key with the type, default and unit that the program has.
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "ZpPaths.h"
#include "plugin/base/NumberText.h"
#include "plugin/pipes/PipeFields.h"
#include "plugin/pipes/attributes/PipeKeys.h"
#include "plugin/pipes/ducts/DuctFields.h"
#include "plugin/pipes/limits/LimitFields.h"

namespace {

CString Cell(const CString& text) {
  return text.IsEmpty() ? L" |" : L" " + text + L" |";
}

CString Defaults(const CString& text) {
  return Cell(L"text") + Cell(text);
}

CString Defaults(double number) {
  CString text = ZP::ftoa(number, 3, true);
  if (text.Find(L".") < 0) text += L".0";
  return Cell(L"double") + Cell(text);
}

class FormatPage {
 public:
  explicit FormatPage(const char* name) {
    std::ifstream file(std::filesystem::path(ZP_SOURCE_DIR) / "docs/formats" / name, std::ios::binary);
    m_text = CString::FromUtf8(std::string{std::istreambuf_iterator<char>(file), {}});
  }
  template <typename Value>
  void ExpectField(const wchar_t* key, const Value& value, const wchar_t* unit) const {
    const CString row = L"| `" + CString(key) + L"` |" + Defaults(value) + Cell(unit);
    EXPECT_GE(m_text.Find(row), 0) << row.ToUtf8();
  }
  void ExpectKey(const wchar_t* key) const {
    EXPECT_GE(m_text.Find(L"`" + CString(key) + L"`"), 0) << CString(key).ToUtf8();
  }

 private:
  CString m_text;
};

TEST(FormatPageOfPipeMaterial, TellsEveryField) {
  const FormatPage page("pipematerial.md");
  const CZPPipeMaterial pipe;
  for (const PipeMaterialField& field : kPipeMaterialFields)
    std::visit([&](auto member) { page.ExpectField(field.key, pipe.*member, field.unit); }, field.member);
  const SZPPipeDNData row;
  for (const PipeRowField& field : kPipeRowFields) page.ExpectField(field.key, row.*field.member, field.unit);
  const CZPDuctMaterial duct;
  for (const DuctMaterialField& field : kDuctMaterialFields)
    page.ExpectField(field.key, duct.*field.member, field.unit);
  const SZPDuctThickness band;
  for (const DuctThicknessField& field : kDuctThicknessFields)
    page.ExpectField(field.key, band.*field.member, field.unit);
  const CZPDuctDiameter size;
  for (const DuctSizeField& field : kDuctSizeFields)
    page.ExpectField(field.key, size.*field.member, field.unit);
  for (const wchar_t* key : {kPipeSection, kPipeTable, kDuctMaterialSection, kDuctThicknessTable,
                             kDuctSizeSection, kRectSizes, kCircleSizes})
    page.ExpectKey(key);
}

TEST(FormatPageOfPipeLimit, TellsEveryField) {
  const FormatPage page("pipelimit.md");
  const CZPPipeLimit limit;
  for (const PipeLimitField& field : kPipeLimitFields)
    page.ExpectField(field.key, limit.*field.range.*field.bound, field.unit);
  page.ExpectKey(kLimitSection);
}

TEST(FormatPageOfExtendedData, TellsEveryKeyOfPipes) {
  const FormatPage page("extended_data.md");
  for (const wchar_t* key :
       {pipes::kMaterialKey, pipes::kDnKey, pipes::kFlowRateKey, pipes::kFlowVelocityKey,
        pipes::kFrictionLossKey, pipes::kRunResistanceKey, pipes::kLengthKey, pipes::kElevationKey,
        pipes::kStartElevationKey, pipes::kEndElevationKey, pipes::kCodeKey, pipes::kCodePrefixKey})
    page.ExpectKey(key);
}

} // namespace
