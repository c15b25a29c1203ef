// The workbench as the host loads it.
#include "host/ed/AcRxDynamicLinker.h"
#include "tests/support/EditorFixture.h"
#include "tests/support/MenuFile.h"

namespace {

class Loading : public EditorFixture {
 protected:
  const CString m_file = CString::FromUtf8(ZP_WORKBENCH_FILE);

  static std::vector<std::shared_ptr<const AcEdCommand>> Commands() {
    auto all = acedRegCmds->commands();
    std::erase_if(all, [](const auto& command) { return command->groupName() != L"WORKBENCH"; });
    return all;
  }
};

TEST_F(Loading, RegistersItsCommandsAndTakesThemAwayAgain) {
  ASSERT_TRUE(acrxDynamicLinker->loadModule(m_file)) << acrxDynamicLinker->lastError().ToUtf8();
  const auto commands = Commands();
  EXPECT_FALSE(commands.empty());
  for (const auto& command : commands) {
    EXPECT_EQ(0, command->globalName().Find(L"WB_")) << command->globalName().ToUtf8();
    EXPECT_NE(command->globalName(), command->localName()) << "no title of its own";
  }
  EXPECT_TRUE(acrxDynamicLinker->unloadModule(m_file)) << acrxDynamicLinker->lastError().ToUtf8();
  EXPECT_TRUE(Commands().empty());
}

TEST_F(Loading, HasEveryCommandOnceInItsMenus) {
  ASSERT_TRUE(acrxDynamicLinker->loadModule(m_file)) << acrxDynamicLinker->lastError().ToUtf8();
  auto found = CommandsOfMenuFile(ZP_WORKBENCH_MENU);
  EXPECT_EQ(Commands().size(), found.size());
  for (const auto& command : Commands()) {
    EXPECT_EQ(1, found[command->globalName().ToUtf8()]) << command->globalName().ToUtf8();
    EXPECT_NE(nullptr, acedRegCmds->lookupCmd(command->localName())) << command->localName().ToUtf8();
  }
  acrxDynamicLinker->unloadModule(m_file);
}

} // namespace
