#include "host/console/ConsoleProgram.h"

#include "host/afx/AtomicFile.h"
#include "host/console/ConsoleFrontEnd.h"
#include "host/console/Interrupt.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "host/ed/EdSession.h"
#include "host/ed/acedCommand.h"

#include <memory>

namespace console {
namespace {

// What stands between a session and the next one, also when it ends early.
class SessionScope {
 public:
  explicit SessionScope(ConsoleFrontEnd& frontEnd) : m_frontEnd(frontEnd) {
    EdSession::instance().reset();
    EdSession::instance().setFrontEnd(&frontEnd);
    UiFrontEnd::Set(&frontEnd.dialogs());
  }
  ~SessionScope() {
    acrxDynamicLinker->unloadAll();
    acDocManager->clearPendingText();
    acDocManager->closeAll();
    m_frontEnd.finish();
    EdSession::instance().reset();
    EdSession::instance().setFrontEnd(nullptr);
    UiFrontEnd::Set(nullptr);
  }
  SessionScope(const SessionScope&) = delete;
  SessionScope& operator=(const SessionScope&) = delete;

 private:
  ConsoleFrontEnd& m_frontEnd;
};

void tellUnsaved(ConsoleFrontEnd& frontEnd) {
  const std::unique_ptr<AcApDocumentIterator> documents(acDocManager->newAcApDocumentIterator());
  for (; !documents->done(); documents->step())
    if (documents->document()->database()->isModified())
      frontEnd.print(L"\n图形“" + documents->document()->docTitle() + L"”的修改没有保存。\n");
}

bool pushScript(const CString& path, ConsoleFrontEnd& frontEnd) {
  constexpr std::uint64_t largest = 64ull << 20;
  std::string bytes;
  const auto result = afx::ReadWholeFile(path, bytes, largest);
  if (!result.ok) {
    frontEnd.print(L"\n" + result.message + L"\n");
    return false;
  }
  constexpr bool fallsThrough = false;
  EdSession::instance().input().push(std::make_unique<EdScriptSource>(path, std::move(bytes), fallsThrough));
  return true;
}

} // namespace

int RunConsole(const ConsoleJob& job, std::istream& in, std::ostream& out, ConsoleStreams streams) {
  const Interrupt interrupt;
  ConsoleFrontEnd frontEnd(in, out, streams);
  const SessionScope scope(frontEnd);
  auto& session = EdSession::instance();
  acDocManager->newDocument();
  if (job.drawing && acedCommandTexts({L"OPEN", *job.drawing}, false) != RTNORM) return kUnusable;
  if (session.refusedLines() > 0) return kUnusable;
  for (const auto& plugIn : job.plugIns)
    if (!acrxDynamicLinker->loadModule(plugIn, true)) return kUnusable;
  if (job.script && !pushScript(*job.script, frontEnd)) return kUnusable;
  session.run();
  if (!session.quitRequested()) tellUnsaved(frontEnd);
  return session.refusedLines() > 0 || frontEnd.wasInterrupted() ? kLineRefused : kDone;
}

} // namespace console
