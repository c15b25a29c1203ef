// One run of the program at the console, from its options to its exit status.
#pragma once

#include "host/console/ConsoleFrontEnd.h"

#include <iosfwd>
#include <optional>
#include <vector>

struct ConsoleJob {
  std::vector<CString> plugIns;
  std::optional<CString> script; // lines come from here instead of the standard input
  std::optional<CString> drawing;
};

namespace console {

inline constexpr int kDone = 0;
inline constexpr int kLineRefused = 1;
inline constexpr int kUnusable = 2; // a bad option, or a file that can't be read

// Opens the drawing (or a new one), runs the lines and closes everything. The commands of the host must be
// registered. While it runs, SIGINT cancels what the editor does, as Escape; where nobody types, the input
// ends with it and the status is that of a refused line.
int RunConsole(const ConsoleJob& job, std::istream& in, std::ostream& out, ConsoleStreams streams = {});

} // namespace console
