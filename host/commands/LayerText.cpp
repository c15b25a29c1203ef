#include "host/commands/LayerText.h"

#include "host/afx/Numbers.h"
#include "host/db/AcDbLayerTable.h"
#include "host/ed/EdLineParser.h"

#include <cmath>

namespace commands {
namespace {

struct ColorName {
  int index;
  const wchar_t* chinese;
  const wchar_t* english;
};
constexpr ColorName kColors[] = {{1, L"红", L"red"},  {2, L"黄", L"yellow"}, {3, L"绿", L"green"},
                                 {4, L"青", L"cyan"}, {5, L"蓝", L"blue"},   {6, L"洋红", L"magenta"},
                                 {7, L"白", L"white"}};

} // namespace

CString ColorText(int index) {
  CString text;
  text.Format(L"%d", index);
  for (const auto& color : kColors)
    if (color.index == index) text += CString(L"(") + color.chinese + L")";
  return text;
}

std::optional<int> ParseColor(const CString& text) {
  for (const auto& color : kColors)
    if (text == color.chinese || text.CompareNoCase(color.english) == 0) return color.index;
  const auto number = ed::ParseInteger(text);
  if (!number || *number < 1 || *number > 255) return std::nullopt;
  return static_cast<int>(*number);
}

CString WeightText(AcDb::LineWeight weight) {
  if (weight == AcDb::kLnWtByLwDefault) return L"默认";
  return CString(afx::FixedDouble(static_cast<int>(weight) / 100.0, 2, false)) + L" 毫米";
}

std::optional<AcDb::LineWeight> ParseWeight(const CString& text) {
  if (text == L"默认" || text.CompareNoCase(L"default") == 0) return AcDb::kLnWtByLwDefault;
  const auto millimetres = ed::ParseReal(text);
  if (!millimetres || !(*millimetres >= 0 && *millimetres < 100)) return std::nullopt;
  const int code = static_cast<int>(std::lround(*millimetres * 100));
  if (std::fabs(code / 100.0 - *millimetres) > 1e-9 || !AcDb::isValidLineWeight(code)) return std::nullopt;
  return static_cast<AcDb::LineWeight>(code);
}

CString StateText(const AcDbLayerTableRecord& layer) {
  return CString(layer.isOff() ? L"关" : L"开") + (layer.isFrozen() ? L" 冻结" : L" 解冻") +
         (layer.isLocked() ? L" 锁定" : L" 解锁");
}

CString LinetypeName(const AcDbLayerTableRecord& layer) {
  const auto* linetype = AcDbSymbolTableRecord::cast(layer.linetypeObjectId().object());
  return linetype ? linetype->name() : CString(L"Continuous");
}

} // namespace commands
