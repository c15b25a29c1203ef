// What the program was started with.
#pragma once

#include "host/console/ConsoleProgram.h"

#include <optional>
#include <string>

struct Options {
  bool console = false;
  std::optional<std::string> dataFolder;
  ConsoleJob job;
  std::optional<std::string> screenshot; // of the window, in this file; the program ends then
};

// Fills in the options. Nothing when the program is to go on; the exit status when it is to end here, after
// help, version or a bad option have been told.
std::optional<int> ParseOptions(int argc, const char* const* argv, Options& options);
