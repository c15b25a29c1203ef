#include "host/console/ConsoleDialogs.h"

#include "host/console/DialogLine.h"
#include "host/console/DialogTargets.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdSession.h"
#include "host/ui/CDialog.h"

namespace {
// What an event asked for in the drawing is over: a pick given up there gives up the event and not the
// command.
constexpr bool kGoesOn = false;
} // namespace

void ConsoleDialogs::Obey(CFormWnd& form, const CString& line) {
  const auto outcome =
      console::ObeyDialogLine(form, line, [&](const CString& text) { m_frontEnd.print(L"\n" + text); });
  auto& session = EdSession::instance();
  if (!outcome) session.refuse(outcome.reason, outcome.expected);
}

void ConsoleDialogs::RunModal(CDialog& dialog) {
  auto& session = EdSession::instance();
  const EdInput::UserOnly userOnly(session.input());
  const CString title = console::PlainName(dialog.GetCaption());
  m_frontEnd.print(L"\n对话框：" + title + L"\n");
  while (!dialog.HasEnded()) {
    const auto line = session.input().read(console::PlainName(dialog.GetCaption()) + L":");
    if (!line) break;
    if (CString(line->text).Trim().IsEmpty()) continue;
    if (ed::IsCancelLine(line->text)) {
      dialog.UserEscape();
    } else {
      Obey(dialog, line->text);
    }
    session.noteInput(kGoesOn);
  }
  if (dialog.HasEnded()) return;
  m_frontEnd.print(L"\n（输入结束，关闭“" + title + L"”）\n");
  dialog.UserClose();
  session.noteInput(kGoesOn);
}

void ConsoleDialogs::ShowModeless(CFormWnd& window) {
  std::erase(m_modeless, &window);
  m_modeless.push_back(&window);
  m_frontEnd.print(L"\n面板：" + console::PlainName(window.GetCaption()) + L"\n");
}

void ConsoleDialogs::WindowGone(CFormWnd& window) {
  std::erase(m_modeless, &window);
}

bool ConsoleDialogs::ObeyBarLine(const CString& line) {
  constexpr const wchar_t* word = L"bar";
  const CString first = CString(line).TrimLeft().SpanExcluding(L" \t");
  if (first.CompareNoCase(word) != 0) return false;
  std::erase_if(m_modeless, [](const CFormWnd* window) { return window->HasEnded(); });
  for (auto window = m_modeless.rbegin(); window != m_modeless.rend(); ++window) {
    if (!(*window)->IsWindowVisible()) continue;
    Obey(**window, CString(line).TrimLeft().Mid(first.GetLength()));
    return true;
  }
  EdSession::instance().refuse(L"没有打开的面板。", L"先执行打开面板的命令");
  return true;
}

int ConsoleDialogs::ShowMessageBox(const UiMessageBox& box) {
  EdMessageBox asked{box.caption, box.text, {}, box.defaultButton};
  for (const auto& button : box.buttons) asked.buttons.push_back(button.caption);
  return box.buttons[m_frontEnd.messageBox(asked).button].id;
}
