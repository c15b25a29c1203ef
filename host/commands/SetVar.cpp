// SETVAR: shows and sets system variables.
#include "host/commands/CommandFunctions.h"
#include "host/commands/NumberText.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/SystemVariables.h"
#include "host/ed/WildcardMatch.h"
#include "host/ed/acutPrintf.h"

#include <optional>

namespace commands {
namespace {

CString valueText(const SystemVariables::Value& value) {
  CString text;
  if (const auto* integer = std::get_if<long>(&value))
    text.Format(L"%d", *integer);
  else if (const auto* real = std::get_if<double>(&value))
    text = CString::FromUtf8(afx::ShortestDouble(*real));
  else if (const auto* words = std::get_if<CString>(&value))
    text = L"“" + *words + L"”";
  else
    text = PointText(std::get<AcGePoint3d>(value));
  return text;
}

void printAll() {
  for (const auto& name : SystemVariables::names()) {
    SystemVariables::Value value;
    if (SystemVariables::get(name, value) != SystemVariables::Result::ok) continue;
    acutPrintf(L"%s = %s%s  %s\n", name, valueText(value),
               SystemVariables::isReadOnly(name) ? L"（只读）" : L"", SystemVariables::title(name));
  }
}

// The typed text as a value of the kind that the variable has.
std::optional<SystemVariables::Value> parse(const CString& text, const SystemVariables::Value& like) {
  if (std::holds_alternative<CString>(like)) return text;
  if (std::holds_alternative<long>(like)) {
    const auto integer = ed::ParseInteger(text);
    return integer ? std::optional<SystemVariables::Value>(*integer) : std::nullopt;
  }
  if (std::holds_alternative<double>(like)) {
    const auto real = ed::ParseReal(text);
    return real ? std::optional<SystemVariables::Value>(*real) : std::nullopt;
  }
  const auto point = ed::ParsePoint(text, {});
  return point ? std::optional<SystemVariables::Value>(*point) : std::nullopt;
}

} // namespace

void SetVar() {
  using Result = SystemVariables::Result;
  auto& session = EdSession::instance();
  const auto asked = ed::AskText({L"输入变量名，或 ? 列出全部:", {}, 0, {}});
  if (!asked.hasValue()) return;
  const CString name = CString(asked.text).Trim().MakeUpper();
  if (name == L"?") return printAll();
  SystemVariables::Value value;
  if (const auto result = SystemVariables::get(name, value); result != Result::ok)
    return session.refuse(SystemVariables::reason(result, ed::Excerpt(name)), L"系统变量名，或 ?");
  if (SystemVariables::isReadOnly(name)) {
    acutPrintf(L"\n%s = %s（只读）\n", name, valueText(value));
    return;
  }
  const auto answer = ed::AskText({L"输入 " + name + L" 的新值 <" + valueText(value) + L">:", {}, 0, {}});
  if (!answer.hasValue()) return;
  const auto parsed = parse(CString(answer.text).Trim(), value);
  const auto result = parsed ? SystemVariables::set(name, *parsed) : Result::wrongType;
  if (result != Result::ok) return session.refuse(SystemVariables::reason(result, name), L"与现值同类的值");
  SystemVariables::get(name, value);
  acutPrintf(L"\n%s = %s\n", name, valueText(value));
}

} // namespace commands
