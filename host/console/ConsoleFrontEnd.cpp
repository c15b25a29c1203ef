#include "host/console/ConsoleFrontEnd.h"

#include "host/console/Interrupt.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdLineSource.h"
#include "host/ed/EdSession.h"

#include <cstdio>
#include <iostream>
#include <ostream>
#include <string>

#include <unistd.h>

// Names in drawings may hold anything; nothing of it may command the terminal or break the encoding.
void ConsoleFrontEnd::write(const CString& text) {
  if (text.IsEmpty()) return;
  eraseProgress();
  std::wstring shown(text.View());
  for (wchar_t& c : shown)
    if ((c < 0x20 && c != L'\n' && c != L'\t') || (c >= 0x7F && c < 0xA0) || (c >= 0xD800 && c < 0xE000))
      c = L'\xFFFD';
  m_out << CString(std::move(shown)).ToUtf8();
  m_atLineStart = text.View().back() == L'\n';
}

void ConsoleFrontEnd::freshLine() {
  if (!m_atLineStart) write(L"\n");
}

void ConsoleFrontEnd::print(const CString& text) {
  if (text.IsEmpty()) return;
  if (text.View().front() == L'\n') {
    freshLine();
    write(text.Mid(1));
  } else {
    write(text);
  }
}

// False at the end of the input, or where an interrupt has broken it off.
bool ConsoleFrontEnd::takeTyped(std::string& line) {
  // A terminal hands over whole lines, so that none is left in the stream when this waits for the next one.
  if (&m_in == &std::cin && isatty(STDIN_FILENO) && !Interrupt::WaitForLine()) return false;
  // One byte more than a line may have tells a long line from one that just fits; the rest of it is passed
  // over.
  bool any = false;
  for (int c = m_in.get(); c != std::istream::traits_type::eof(); c = m_in.get()) {
    any = true;
    if (c == '\n') break;
    if (line.size() <= kEdLineLimit) line.push_back(static_cast<char>(c));
  }
  if (line.ends_with('\r')) line.pop_back();
  return any && !Interrupt::IsPending();
}

// At a prompt it is Escape. Pressed again at the command prompt it means the program, which asks about
// unsaved work as always.
CString ConsoleFrontEnd::afterInterrupt() {
  m_in.clear();
  std::clearerr(stdin);
  const bool idle = EdSession::instance().commandDepth() == 0;
  if (idle && m_endsNext) return L"QUIT";
  m_endsNext = idle;
  write(L"\n");
  if (idle) write(L"（再按一次 Ctrl+C 或输入 QUIT 退出）\n");
  return L"*cancel*";
}

std::optional<CString> ConsoleFrontEnd::readLine(const CString& prompt) {
  if (m_interrupted) return std::nullopt;
  if (m_interactive) {
    freshLine();
    write(prompt + L" ");
  }
  m_out.flush();
  std::string line;
  if (takeTyped(line)) {
    m_endsNext = false;
    if (m_interactive) m_atLineStart = true;
    return CString::FromUtf8(line);
  }
  if (!Interrupt::Take()) return std::nullopt;
  if (m_interactive) return afterInterrupt();
  m_interrupted = true;
  return std::nullopt;
}

bool ConsoleFrontEnd::takeInterrupt() {
  if (!Interrupt::Take()) return false;
  m_interrupted = !m_interactive;
  return true;
}

bool ConsoleFrontEnd::showProgress(const CString& task, double done) {
  using namespace std::chrono;
  constexpr auto kUnseen = milliseconds(500); // what is done sooner needs no line
  constexpr auto kBetween = milliseconds(100);
  const auto now = steady_clock::now();
  if (!m_taskBegan) m_taskBegan = now;
  if (m_showsProgress && now - *m_taskBegan >= kUnseen && now - m_lastShown >= kBetween) {
    if (!m_progressStands) freshLine();
    CString text;
    text.Format(L"%s：%d%%（Ctrl+C 取消）", task, static_cast<int>(done * 100));
    m_out << '\r' << text.ToUtf8();
    m_out.flush();
    m_lastShown = now;
    m_progressStands = true;
  }
  // The interrupt stays: the next line that is wanted is Escape as well, and scripts end.
  return !Interrupt::IsPending();
}

void ConsoleFrontEnd::eraseProgress() {
  constexpr char kEraseLine[] = "\r\033[K";
  if (m_progressStands) m_out << kEraseLine;
  m_progressStands = false;
}

void ConsoleFrontEnd::progressEnded() {
  eraseProgress();
  m_taskBegan.reset();
}

void ConsoleFrontEnd::echo(const CString& prompt, const CString& line, bool typed) {
  if (typed && m_interactive) return;
  freshLine();
  write((prompt.IsEmpty() ? CString() : prompt + L" ") + line + L"\n");
}

EdBoxResult ConsoleFrontEnd::messageBox(const EdMessageBox& box) {
  freshLine();
  write(L"[" + box.caption + L"] " + box.text + L"\n");
  const CString& otherwise = box.buttons[box.defaultButton];
  // A person need not confirm what leaves no choice.
  if (m_interactive && box.buttons.size() == 1) return {box.defaultButton, true};
  CString choices;
  for (const auto& button : box.buttons) choices += (choices.IsEmpty() ? L"" : L"/") + button;
  const CString prompt = choices + L" <" + otherwise + L">:";
  auto& session = EdSession::instance();
  const auto isAnswer = [&](const CString& line) {
    return ed::ParseAnswer(line) || ed::FindButton(box.buttons, CString(line).Trim());
  };
  while (const auto line = session.input().readIf(prompt, isAnswer)) {
    const CString text = CString(line->text).Trim();
    if (const auto button = ed::FindButton(box.buttons, ed::ParseAnswer(text).value_or(text)))
      return {*button, true};
    session.refuse(L"没有按钮“" + ed::Excerpt(*ed::ParseAnswer(text)) + L"”。",
                   L"answer 加按钮名 " + choices);
  }
  freshLine();
  write(L"（未回答，取默认按钮“" + otherwise + L"”）\n");
  return {box.defaultButton, false};
}

void ConsoleFrontEnd::lineRefused(const EdRefusal& refusal) {
  freshLine();
  write(refusal.reason + L"\n");
  CString where = refusal.source;
  if (refusal.number > 0) where.AppendFormat(where.IsEmpty() ? L"第 %d 行" : L" 第 %d 行", refusal.number);
  CString text = L"** " + where + L"“" + ed::Excerpt(refusal.line) + L"”未执行";
  text += refusal.scriptStopped ? L"，脚本到此停止。" : L"。";
  if (!refusal.expected.IsEmpty()) text += L"应为：" + refusal.expected + L"。";
  write(text + L"\n");
}

void ConsoleFrontEnd::finish() {
  freshLine();
  m_out.flush();
}
