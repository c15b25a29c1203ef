#include "host/qt/dialogs/ScriptedAnswer.h"

#include "host/ed/EdLineParser.h"
#include "host/ed/EdSession.h"

namespace desktop {

std::optional<std::size_t> ScriptedAnswer(const EdMessageBox& box) {
  auto& session = EdSession::instance();
  const auto isAnswer = [&](const CString& line) {
    return ed::ParseAnswer(line) || ed::FindButton(box.buttons, CString(line).Trim());
  };
  const auto line =
      session.input().readIf(L"[" + box.caption + L"] " + box.text, isAnswer, EdInput::From::scripts);
  if (!line) return std::nullopt;
  const CString text = CString(line->text).Trim();
  const CString name = ed::ParseAnswer(text).value_or(text);
  const auto button = ed::FindButton(box.buttons, name);
  if (!button) session.refuse(L"没有按钮“" + ed::Excerpt(name) + L"”。", L"answer 加按钮名");
  return button;
}

} // namespace desktop
