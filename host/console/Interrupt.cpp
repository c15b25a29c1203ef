#include "host/console/Interrupt.h"

#include <poll.h>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t g_pending = 0;

void note(int) {
  g_pending = 1;
}

} // namespace

Interrupt::Interrupt() {
  g_pending = 0;
  struct sigaction action {};
  action.sa_handler = note; // without SA_RESTART: a read that waits returns
  sigemptyset(&action.sa_mask);
  sigaction(SIGINT, &action, &m_before);
}

Interrupt::~Interrupt() {
  sigaction(SIGINT, &m_before, nullptr);
  g_pending = 0;
}

bool Interrupt::IsPending() {
  return g_pending != 0;
}

bool Interrupt::Take() {
  const bool pending = g_pending != 0;
  g_pending = 0;
  return pending;
}

// Signals are held back but while it waits, so that none comes between the look at the note and the wait.
bool Interrupt::WaitForLine() {
  sigset_t held;
  sigset_t before;
  sigemptyset(&held);
  sigaddset(&held, SIGINT);
  sigprocmask(SIG_BLOCK, &held, &before);
  if (!IsPending()) {
    pollfd terminal{STDIN_FILENO, POLLIN, 0};
    ppoll(&terminal, 1, nullptr, &before);
  }
  sigprocmask(SIG_SETMASK, &before, nullptr);
  return !IsPending();
}
