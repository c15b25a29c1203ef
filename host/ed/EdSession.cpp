#include "host/ed/EdSession.h"

#include "host/afx/MessageLog.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/ChangeCounter.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdLineParser.h"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

EdSession::EdSession()
    : m_input([this](const CString& reason, const CString& expected) { refuse(reason, expected); }) {}

EdSession& EdSession::instance() {
  static auto* session = new EdSession; // never destroyed: plug-ins print from their own destructors
  return *session;
}

void EdSession::setFrontEnd(EdFrontEnd* frontEnd) {
  m_frontEnd = frontEnd;
  m_input.setFrontEnd(frontEnd);
  m_transients.setObserver([frontEnd] {
    if (frontEnd) frontEnd->transientsChanged();
  });
}

void EdSession::reset() {
  m_input.clear();
  m_lastCommand.Empty();
  m_initGet = {};
  m_keyword.Empty();
  m_sentTexts = m_refused = 0;
  m_quit = false;
}

void EdSession::print(const CString& text) {
  if (m_frontEnd) m_frontEnd->print(text);
}

void EdSession::refuse(const CString& reason, const CString& expected) {
  ++m_refused;
  const auto line = m_input.last();
  const bool stopped = m_input.stopScripts();
  if (m_frontEnd) m_frontEnd->lineRefused({line.source, line.number, line.text, reason, expected, stopped});
}

EdSession::InitGet EdSession::takeInitGet() {
  return std::exchange(m_initGet, InitGet{});
}

void EdSession::noteInput(bool cancelled) {
  if (!m_running.empty()) m_running.back()->lastInputCancelled = cancelled;
}

// --- lines
// ------------------------------------------------------------------------------------------------------

void EdSession::run() {
  while (!m_quit) {
    promoteSentText();
    const auto line = m_input.read(L"命令:");
    if (!line) break;
    if (line->typed) m_sentTexts = 0;
    obey(line->text);
  }
}

void EdSession::executeLine(const CString& line) {
  m_sentTexts = 0;
  obey(line);
  runSentTexts();
}

void EdSession::runSentTexts() {
  while (!m_quit && promoteSentText()) {
    const auto depth = m_input.depth();
    for (m_input.dropFinished(); m_input.depth() >= depth && !m_quit; m_input.dropFinished()) {
      const auto line = m_input.read(L"命令:");
      if (!line) break;
      obey(line->text);
      promoteSentText();
    }
  }
}

// Text that was sent goes on top of all other input, in the order in which it was sent. It is bounded, since
// a command can send its own name.
bool EdSession::promoteSentText() {
  std::deque<CString> answers;
  bool echo = true;
  while (auto text = acDocManagerPtr()->takePendingText()) {
    if (++m_sentTexts > kMaxSentTexts) {
      acDocManagerPtr()->clearPendingText();
      refuse(L"命令一再向自身发送文字，已停止执行。");
      return false;
    }
    auto more = EdAnswerSource::split(text->text);
    answers.insert(answers.end(), more.begin(), more.end());
    echo = text->echo;
  }
  if (answers.empty()) return false;
  m_input.push(std::make_unique<EdAnswerSource>(std::move(answers), echo, true));
  return true;
}

void EdSession::obey(const CString& line) {
  CString name = ed::CommandName(line);
  if (name.IsEmpty()) {
    if (m_lastCommand.IsEmpty()) return;
    name = m_lastCommand;
    print(L"\n" + name + L"\n");
  }
  if (ed::IsCancelLine(line)) return;
  if (m_frontEnd && m_frontEnd->takeLine(line)) return;
  runCommand(name);
}

// --- commands
// ---------------------------------------------------------------------------------------------------

EdSession::Outcome EdSession::runCommand(const CString& name) {
  auto command = acedCommandStack()->lookupCmd(ed::CommandName(name));
  if (!command) {
    const CString shown = ed::Excerpt(ed::CommandName(name));
    refuse(L"未知命令“" + shown + L"”。按 HELP 查看命令。", L"一个命令名");
    return Outcome::unknown;
  }
  if (m_running.empty()) m_lastCommand = command->globalName();
  return run(std::move(command));
}

CString EdSession::runningCommands() const {
  CString names;
  for (const auto& running : m_running) {
    if (!names.IsEmpty()) names += L"'";
    names += running->command->globalName();
  }
  return names;
}

bool EdSession::isRunning(AcRxFunctionPtr function) const {
  return std::any_of(m_running.begin(), m_running.end(),
                     [&](const auto& running) { return running->command->functionAddr() == function; });
}

bool EdSession::commandUsesPickSet() const {
  return !m_running.empty() && m_running.back()->command->has(ACRX_CMD_USEPICKSET);
}

namespace {

AcAp::DocLockMode lockOf(const AcEdCommand& command) {
  if (command.has(ACRX_CMD_DOCREADLOCK)) return AcAp::kRead;
  if (command.has(ACRX_CMD_DOCEXCLUSIVELOCK)) return AcAp::kXWrite;
  return AcAp::kWrite;
}

} // namespace

EdSession::Outcome EdSession::run(std::shared_ptr<const AcEdCommand> command) {
  if (m_running.size() >= kMaxNestedCommands) {
    refuse(L"命令嵌套过深，未执行“" + command->globalName() + L"”。");
    return Outcome::failed;
  }
  auto* manager = acDocManagerPtr();
  auto* document = manager->curDocument();
  const bool inDocument = !command->has(ACRX_CMD_SESSION);
  if (inDocument && !document) {
    refuse(L"没有打开的图形，不能执行“" + command->globalName() + L"”。", L"先用 NEW 或 OPEN 打开图形");
    return Outcome::failed;
  }
  if (inDocument && manager->lockForCommand(document, lockOf(*command), command->globalName()) != Acad::eOk) {
    refuse(L"图形被锁定，不能执行“" + command->globalName() + L"”。");
    return Outcome::failed;
  }
  const bool outermost = m_running.empty();
  const bool undoable = inDocument && outermost && !command->has(ACRX_CMD_NO_UNDO_MARKER);
  if (document && outermost && !command->has(ACRX_CMD_USEPICKSET)) document->edit().pickFirst.clear();

  ChangeCounter changes(undoable ? document->database() : nullptr);
  const bool wasModified = document && document->database()->isModified();
  if (undoable) document->database()->undo().beginCommand(command->globalName());
  m_initGet = {};
  m_running.push_back(std::make_unique<Running>(Running{command, inDocument ? document : nullptr, false}));
  CString failure;
  const auto outcome = call(*m_running.back(), failure);
  m_running.pop_back();

  if (undoable) {
    if (outcome == Outcome::done) {
      document->database()->undo().endCommand();
    } else {
      document->database()->undo().cancelCommand();
      document->database()->setModified(wasModified);
    }
  }
  if (inDocument) {
    manager->unlockDocument(document);
    if (outermost && !command->has(ACRX_CMD_REDRAW)) document->edit().pickFirst.clear();
  }
  if (outcome == Outcome::failed) refuse(failure);
  if (outcome != Outcome::done && changes.changed())
    print(L"\n命令“" + command->globalName() + L"”未完成，图形已恢复到命令之前的状态。\n");
  return outcome;
}

EdSession::Outcome EdSession::call(Running& running, CString& failure) {
  const CString& name = running.command->globalName();
  try {
    running.command->functionAddr()();
    return running.lastInputCancelled ? Outcome::cancelled : Outcome::done;
  } catch (const std::bad_alloc&) {
    failure = L"命令“" + name + L"”出错：内存不足。";
  } catch (const std::exception& error) {
    failure = L"命令“" + name + L"”出错：" + CString::FromUtf8(error.what());
  } catch (...) {
    failure = L"命令“" + name + L"”出错。";
  }
  afx::LogError(failure);
  return Outcome::failed;
}
