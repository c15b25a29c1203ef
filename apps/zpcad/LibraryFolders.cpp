#include "apps/zpcad/LibraryFolders.h"

#include <system_error>

namespace fs = std::filesystem;

std::optional<fs::path> FindLibrary(const fs::path& programFolder, const std::string& name) {
  std::error_code error;
  for (const char* place : {".", "../lib/zppipemanager"})
    if (const auto file = (programFolder / place / name).lexically_normal(); fs::exists(file, error))
      return file;
  return std::nullopt;
}
