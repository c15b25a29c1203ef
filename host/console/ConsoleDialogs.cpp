#include "host/console/ConsoleDialogs.h"

#include "host/console/DialogInput.h"
#include "host/console/DialogTargets.h"
#include "host/ed/EdSession.h"
#include "host/ui/CDialog.h"

namespace {

// What stands before each line that is typed in the dialog: a title that says much says it once.
CString PromptOf(const CDialog& dialog) {
  constexpr int most = 20; // characters
  const CString title = console::PlainName(dialog.GetCaption());
  if (title.GetLength() <= most) return title + L":";
  const int bracket = title.FindOneOf(L"(（");
  return (bracket > 0 && bracket <= most ? title.Left(bracket) : title.Left(most) + L"…") + L":";
}

} // namespace

void ConsoleDialogs::RunModal(CDialog& dialog) {
  auto& session = EdSession::instance();
  const EdInput::UserOnly userOnly(session.input());
  const CString title = console::PlainName(dialog.GetCaption());
  m_frontEnd.print(L"\n对话框：" + title + L"\n");
  while (!dialog.HasEnded()) {
    const auto line = session.input().read(PromptOf(dialog));
    if (!line) break;
    console::ObeyModalLine(dialog, line->text);
  }
  if (dialog.HasEnded()) return;
  m_frontEnd.print(L"\n（输入结束，关闭“" + title + L"”）\n");
  dialog.UserClose();
  constexpr bool cancelled = false; // a pick that an event gave up gives up no more than the event
  session.noteInput(cancelled);
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
  return console::ObeyBarLine(m_modeless, line);
}

int ConsoleDialogs::ShowMessageBox(const UiMessageBox& box) {
  EdMessageBox asked{ShownCaption(box), box.text, {}, box.defaultButton};
  for (const auto& button : box.buttons) asked.buttons.push_back(button.caption);
  return box.buttons[m_frontEnd.messageBox(asked).button].id;
}
