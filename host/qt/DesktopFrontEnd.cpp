#include "host/qt/DesktopFrontEnd.h"

#include "host/ed/EdLineParser.h"

namespace desktop {

std::optional<CString> DesktopFrontEnd::readLine(const CString& prompt) {
  m_view.promptOpened(prompt);
  const auto given = m_feed.next();
  if (!given) return std::nullopt;
  m_silent = given->silent;
  return given->line;
}

void DesktopFrontEnd::echo(const CString& prompt, const CString& line, bool typed) {
  if (typed && m_silent) return;
  m_view.show(L"\n" + (prompt.IsEmpty() ? CString() : prompt + L" ") + line + L"\n",
              DesktopView::Tone::typed);
}

void DesktopFrontEnd::lineRefused(const EdRefusal& refusal) {
  CString text = L"\n" + refusal.reason;
  if (!refusal.source.IsEmpty()) {
    CString where;
    where.Format(L"（%s 第 %d 行“%s”", refusal.source, refusal.number, ed::Excerpt(refusal.line));
    text += where + (refusal.scriptStopped ? L"，脚本到此停止）" : L"）");
  }
  if (!refusal.expected.IsEmpty()) text += L"应为：" + refusal.expected + L"。";
  m_view.show(text + L"\n", DesktopView::Tone::refused);
}

} // namespace desktop
