// The file that tells a desktop in which menus the plug-in's commands stand.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "ZpPaths.h"
#include "host/afx/CString.h"
#include "plugin/frame/CommandTable.h"

namespace {

TEST(MenuFile, NamesEveryCommandOnceWithATitle) {
  std::ifstream file(ZP_SOURCE_DIR "/plugin/frame/ZPPipeManager.menu");
  ASSERT_TRUE(file);
  std::map<std::string, int> found;
  std::string line;
  bool inMenu = false;
  while (std::getline(file, line)) {
    if (line.empty() || line[0] == '#') continue;
    if (line[0] == '[') {
      inMenu = true;
      continue;
    }
    EXPECT_TRUE(inMenu);
    std::istringstream words(line);
    std::string command;
    std::string title;
    words >> command >> title;
    EXPECT_FALSE(title.empty()) << command;
    ++found[command];
  }
  EXPECT_EQ(CommandTable().size(), found.size());
  for (const VkCmdTable& row : CommandTable()) EXPECT_EQ(1, found[CString(row.command).ToUtf8()]);
}

} // namespace
