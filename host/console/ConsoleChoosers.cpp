// The choosers of colours, linetypes, line weights and files at the console: each asks for one line. An empty
// line or Escape cancels.
#include "host/console/ConsoleDialogs.h"

#include "host/afx/Numbers.h"
#include "host/db/AcDb.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLinetypeTable.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdSession.h"

#include <cmath>
#include <functional>

namespace {

struct SpecialValue {
  const wchar_t* name;
  const wchar_t* otherName;
  int value;
};
constexpr SpecialValue kColours[] = {{L"ByLayer", L"随层", UiFrontEnd::kColourByLayer},
                                     {L"ByBlock", L"随块", UiFrontEnd::kColourByBlock}};
constexpr SpecialValue kWeights[] = {{L"ByLayer", L"随层", UiFrontEnd::kWeightByLayer},
                                     {L"ByBlock", L"随块", UiFrontEnd::kWeightByBlock},
                                     {L"Default", L"默认", UiFrontEnd::kWeightDefault}};

template <std::size_t Count>
std::optional<int> FindSpecial(const SpecialValue (&values)[Count], const CString& text) {
  for (const SpecialValue& special : values)
    if (text.CompareNoCase(special.name) == 0 || text == special.otherName) return special.value;
  return std::nullopt;
}
template <std::size_t Count> CString SpecialName(const SpecialValue (&values)[Count], int value) {
  for (const SpecialValue& special : values)
    if (special.value == value) return special.name;
  return {};
}

// Lines until one is accepted; nothing when the user gives up.
template <class Value>
std::optional<Value> Ask(const CString& prompt, const CString& expected,
                         const std::function<std::optional<Value>(const CString&)>& accept) {
  auto& session = EdSession::instance();
  while (const auto line = session.input().read(prompt)) {
    CString text = line->text;
    text = ed::ParseAnswer(text).value_or(text).Trim();
    if (text.IsEmpty() || ed::IsCancelLine(text)) return std::nullopt;
    if (auto value = accept(text)) return value;
    session.refuse(L"“" + ed::Excerpt(text) + L"”不能选择。", expected);
  }
  return std::nullopt;
}

bool IsLinetype(const CString& name) {
  AcDbDatabase* drawing = acdbHostApplicationServices()->workingDatabase();
  if (!drawing) return false;
  const AcDbObjectPointer<AcDbLinetypeTable> table(drawing->linetypeTableId(), AcDb::kForRead);
  return table && table->has(name);
}

} // namespace

std::optional<int> ConsoleDialogs::ChooseColour(int start, bool allowByLayerAndBlock) {
  CString shown = allowByLayerAndBlock ? SpecialName(kColours, start) : CString();
  if (shown.IsEmpty()) shown.Format(L"%d", start);
  const CString range = allowByLayerAndBlock ? L"1 到 255、ByLayer 或 ByBlock" : L"1 到 255";
  return Ask<int>(L"选择颜色（" + range + L"）<" + shown + L">:", range,
                  [&](const CString& text) -> std::optional<int> {
                    if (const auto special = FindSpecial(kColours, text); special && allowByLayerAndBlock)
                      return special;
                    const auto number = ed::ParseInteger(text);
                    if (!number || *number < 1 || *number > 255) return std::nullopt;
                    return static_cast<int>(*number);
                  });
}

std::optional<CString> ConsoleDialogs::ChooseLinetype(const CString& start) {
  return Ask<CString>(L"选择线型 <" + ed::Excerpt(start) + L">:", L"图形中已有的线型名",
                      [](const CString& text) -> std::optional<CString> {
                        if (IsLinetype(text)) return text;
                        return std::nullopt;
                      });
}

std::optional<int> ConsoleDialogs::ChooseLineWeight(int start) {
  CString shown = SpecialName(kWeights, start);
  if (shown.IsEmpty()) shown = CString(afx::FixedDouble(start / 100.0, 2, false));
  const CString range = L"毫米数如 0.25，或 ByLayer、ByBlock、默认";
  return Ask<int>(L"选择线宽（" + range + L"）<" + shown + L">:", range,
                  [](const CString& text) -> std::optional<int> {
                    if (const auto special = FindSpecial(kWeights, text)) return special;
                    const auto number = ed::ParseReal(text);
                    if (!number || *number < 0 || *number > 10) return std::nullopt;
                    const int code = static_cast<int>(std::lround(*number * 100));
                    return AcDb::isValidLineWeight(code) ? std::optional<int>(code) : std::nullopt;
                  });
}

std::optional<CString> ConsoleDialogs::ChooseFile(const UiFileQuestion& question) {
  return Ask<CString>(question.title + L" <" + question.name + L">:", L"文件名",
                      [](const CString& text) -> std::optional<CString> { return text; });
}
