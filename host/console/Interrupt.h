// Ctrl+C of a terminal (SIGINT): while this lives it doesn't end the program but is noted, and a read that
// waits for a line is broken off. There is one at a time; what stood before is put back at its end.
#pragma once

#include <csignal>

class Interrupt {
 public:
  Interrupt();
  ~Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  // Whether it came since the last take.
  static bool IsPending();
  static bool Take();
  // Waits until the terminal has a line. False when an interrupt came before, be it between the prompt and
  // this call.
  static bool WaitForLine();

 private:
  struct sigaction m_before {};
};
