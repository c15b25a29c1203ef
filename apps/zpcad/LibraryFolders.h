// Where the program's libraries and the plug-ins that come with it are: beside it where it was built, in a
// folder of their own where it was installed.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

// The first of the places that has a file of that name.
std::optional<std::filesystem::path> FindLibrary(const std::filesystem::path& programFolder,
                                                 const std::string& name);
