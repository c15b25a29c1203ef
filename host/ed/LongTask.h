// A task that takes long, such as reading a large drawing: the front end shows how far it is, and the user
// may end it early.
#pragma once

#include "host/afx/CString.h"

#include <functional>

class LongTask {
 public:
  // name is for the user: 读图. One task at a time.
  explicit LongTask(CString name) : m_name(std::move(name)) {}
  ~LongTask();
  LongTask(const LongTask&) = delete;
  LongTask& operator=(const LongTask&) = delete;

  // So far done, 0 to 1. False from when the user has cancelled it.
  bool advance(double done);
  bool isCancelled() const { return m_cancelled; }
  // The same as a function, for readers and writers. Must not outlive the task.
  std::function<bool(double)> progress() {
    return [this](double done) { return advance(done); };
  }

 private:
  CString m_name;
  bool m_told = false;
  bool m_cancelled = false;
};
