#include "host/qt/CommandFeed.h"

#include "host/ed/AcApDocManager.h"
#include "host/ed/EdSession.h"

#include <QEventLoop>

#include <utility>

namespace desktop {
namespace {

constexpr wchar_t kCancel[] = L"*cancel*";

} // namespace

void CommandFeed::submit(const CString& line) {
  m_lines.push_back(line);
  wake();
}

void CommandFeed::cancel() {
  submit(kCancel);
}

void CommandFeed::whenIdle(std::function<void()> job) {
  m_jobs.push_back(std::move(job));
  wake();
}

void CommandFeed::wake() {
  if (m_loop) m_loop->quit();
}

void CommandFeed::close() {
  m_closed = true;
  wake();
}

std::optional<CommandFeed::Given> CommandFeed::ready() {
  auto& session = EdSession::instance();
  const bool idle = session.commandDepth() == 0;
  if (!m_lines.empty()) {
    Given given{m_lines.front()};
    m_lines.pop_front();
    return given;
  }
  if (m_whenWaiting) std::exchange(m_whenWaiting, nullptr)();
  if (!m_jobs.empty() && !idle) return Given{kCancel};
  while (!m_jobs.empty() && !session.quitRequested()) {
    const auto job = std::move(m_jobs.front());
    m_jobs.pop_front();
    job();
  }
  // An Escape at the command prompt does nothing; behind it the session looks at what was sent, and whether
  // it is to end.
  if (idle && (session.quitRequested() || acDocManager->hasPendingText())) return Given{kCancel, true};
  return std::nullopt;
}

std::optional<CommandFeed::Given> CommandFeed::next() {
  while (!m_closed) {
    if (auto given = ready()) return given;
    if (m_closed || !m_lines.empty()) continue;
    QEventLoop loop;
    auto* outer = std::exchange(m_loop, &loop);
    loop.exec();
    m_loop = outer;
  }
  return std::nullopt;
}

} // namespace desktop
