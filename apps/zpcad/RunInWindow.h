// Starts the desktop, which stands in a library of its own: the console needs no toolkit.
#pragma once

#include "apps/zpcad/Options.h"

#include <filesystem>

// The exit status. Where the desktop can't be loaded it says so, and names the console.
int RunInWindow(const Options& options, const std::filesystem::path& programFolder, int argc, char** argv);
