// The commands that a menu file names, for tests that hold it against the commands of its plug-in.
#pragma once

#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

// How often each command stands in the file. Every line must stand in a menu and have a title.
inline std::map<std::string, int> CommandsOfMenuFile(const std::string& path) {
  std::ifstream file(path);
  EXPECT_TRUE(file) << path;
  std::map<std::string, int> found;
  std::string line;
  bool inMenu = false;
  while (std::getline(file, line)) {
    if (line.empty() || line[0] == '#') continue;
    if (line[0] == '[') {
      inMenu = true;
      continue;
    }
    EXPECT_TRUE(inMenu) << line;
    std::istringstream words(line);
    std::string command;
    std::string title;
    words >> command >> title;
    EXPECT_FALSE(title.empty()) << command;
    ++found[command];
  }
  return found;
}
