#include "host/console/DialogInput.h"

#include "host/console/DialogLine.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdSession.h"
#include "host/ui/CDialog.h"

namespace console {

void ObeyFormLine(CFormWnd& form, const CString& line) {
  auto& session = EdSession::instance();
  const auto outcome = ObeyDialogLine(form, line, [&](const CString& text) { session.print(L"\n" + text); });
  if (!outcome) session.refuse(outcome.reason, outcome.expected);
}

void ObeyModalLine(CDialog& dialog, const CString& line) {
  if (CString(line).Trim().IsEmpty()) return;
  if (ed::IsCancelLine(line))
    dialog.UserEscape();
  else
    ObeyFormLine(dialog, line);
  // What an event asked for in the drawing is over: a pick given up there gives up the event and not the
  // command.
  constexpr bool goesOn = false;
  EdSession::instance().noteInput(goesOn);
}

bool ObeyBarLine(const std::vector<CFormWnd*>& windows, const CString& line) {
  constexpr const wchar_t* word = L"bar";
  const CString text = CString(line).TrimLeft();
  const CString first = text.SpanExcluding(L" \t");
  if (first.CompareNoCase(word) != 0) return false;
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (!(*window)->IsWindowVisible() || (*window)->HasEnded()) continue;
    ObeyFormLine(**window, text.Mid(first.GetLength()));
    return true;
  }
  EdSession::instance().refuse(L"没有打开的面板。", L"先执行打开面板的命令");
  return true;
}

} // namespace console
