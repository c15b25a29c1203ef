// The lines that the user gives by keyboard, mouse and menus, on their way to the editor. The editor waits
// here; while it does, the window lives.
#pragma once

#include "host/afx/CString.h"

#include <deque>
#include <functional>
#include <optional>

class QEventLoop;

namespace desktop {

class CommandFeed {
 public:
  // What came from the user.
  struct Given {
    CString line;
    bool silent = false; // to be obeyed, not shown
  };

  // Answers the prompt that stands open now, or the next one.
  void submit(const CString& line);
  void cancel();
  // Done at the next command prompt; what runs is cancelled before.
  void whenIdle(std::function<void()> job);
  // Done once a person has to answer, be it at the command prompt or in the middle of a command.
  void whenWaiting(std::function<void()> job) { m_whenWaiting = std::move(job); }
  // Texts sent by programs, a dialog's events: something may have to be done now.
  void wake();
  // Ends the input for good.
  void close();

  // The next line; lets the window live until there is one. Nothing at the end of the input.
  std::optional<Given> next();
  bool isWaiting() const { return m_loop != nullptr; }
  // A line has come, and is read as soon as the window lets go.
  bool isAboutToRead() const { return m_loop && !m_lines.empty(); }

 private:
  std::optional<Given> ready();

  std::deque<CString> m_lines;
  std::deque<std::function<void()>> m_jobs;
  std::function<void()> m_whenWaiting;
  QEventLoop* m_loop = nullptr; // the innermost that waits
  bool m_closed = false;
};

} // namespace desktop
