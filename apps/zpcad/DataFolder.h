// The folder with the catalogues and layer schemes that the plug-in works on.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

struct DataFolder {
  std::filesystem::path path;
  std::string problem; // for the user; empty when all is well
};

// The folder that was asked for; otherwise a copy of the shipped data in the user's own data folder, made
// when there is none yet. When no copy can be made, the shipped data itself. path is empty, with the problem,
// when the folder asked for is none.
DataFolder FindDataFolder(const std::optional<std::string>& asked,
                          const std::filesystem::path& programFolder);
