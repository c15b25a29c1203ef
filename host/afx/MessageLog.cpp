#include "host/afx/MessageLog.h"

#include <deque>
#include <mutex>

namespace afx {
namespace {

constexpr std::size_t kMostMessages = 1000;
constexpr int kMostCharacters = 4096;

struct Log {
  std::mutex mutex;
  std::deque<CString> messages;
  LogSink sink;
};

// Never destroyed: objects that die at the end of the program may still have something to say.
Log& TheLog() {
  static Log& log = *new Log;
  return log;
}

void Enter(MessageKind kind, const CString& text) {
  const CString kept = text.Left(kMostCharacters);
  Log& log = TheLog();
  LogSink sink;
  {
    const std::lock_guard lock(log.mutex);
    log.messages.push_back(kept);
    if (log.messages.size() > kMostMessages) log.messages.pop_front();
    sink = log.sink;
  }
  // Outside the lock, so that a sink may log.
  if (sink) sink(kind, kept);
}

} // namespace

void LogMessage(const CString& text) {
  Enter(MessageKind::Message, text);
}

void LogError(const CString& text) {
  Enter(MessageKind::Error, text);
}

void SetLogSink(LogSink sink) {
  const std::lock_guard lock(TheLog().mutex);
  TheLog().sink = std::move(sink);
}

std::vector<CString> LoggedMessages() {
  const std::lock_guard lock(TheLog().mutex);
  return {TheLog().messages.begin(), TheLog().messages.end()};
}

void ClearLoggedMessages() {
  const std::lock_guard lock(TheLog().mutex);
  TheLog().messages.clear();
}

} // namespace afx
