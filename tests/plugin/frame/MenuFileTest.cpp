// The file that tells a desktop in which menus the plug-in's commands stand.
#include "tests/support/MenuFile.h"
#include "ZpPaths.h"
#include "host/afx/CString.h"
#include "plugin/frame/CommandTable.h"

namespace {

TEST(MenuFile, NamesEveryCommandOnceWithATitle) {
  auto found = CommandsOfMenuFile(ZP_SOURCE_DIR "/plugin/frame/ZPPipeManager.menu");
  EXPECT_EQ(CommandTable().size(), found.size());
  for (const VkCmdTable& row : CommandTable()) EXPECT_EQ(1, found[CString(row.command).ToUtf8()]);
}

} // namespace
