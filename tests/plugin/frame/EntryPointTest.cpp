#include "plugin/frame/EntryPoint.h"

#include <gtest/gtest.h>

#include "host/afx/MessageLog.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxAppMessages.h"
#include "host/ed/AcRxDictionary.h"
#include "plugin/frame/CommandTable.h"
#include "tests/support/ScriptedEditor.h"
#include "tests/support/TempInstall.h"

namespace {

class EntryPoint : public testing::Test {
 protected:
  ~EntryPoint() override {
    acedRegCmds->removeGroup(L"QR");
    acedRegCmds->removeGroup(L"QRQR");
  }
};

void Nothing() {}

TEST_F(EntryPoint, IsBuiltForTheGenerationOfTheHost) {
  EXPECT_EQ(acrxGetApiVersion(), ACRX_API_VERSION);
}

TEST_F(EntryPoint, RegistersTheCommandsInOneGroupInTheirOrder) {
  const std::size_t before = acedRegCmds->commands().size();
  EXPECT_EQ(acrxEntryPoint(AcRx::kInitAppMsg, nullptr), 0);
  const auto commands = acedRegCmds->commands();
  ASSERT_EQ(commands.size(), before + 22);
  for (std::size_t i = 0; i < 22; ++i) {
    const AcEdCommand& command = *commands[before + i];
    EXPECT_EQ(command.groupName(), L"QR");
    EXPECT_EQ(command.globalName(), CommandTable()[i].command);
    EXPECT_EQ(command.localName(), CommandTable()[i].command);
    EXPECT_EQ(command.commandFlags(), 2u);
  }
}

TEST_F(EntryPoint, TakesBothGroupsAwayAtUnload) {
  acrxEntryPoint(AcRx::kInitAppMsg, nullptr);
  acedRegCmds->addCommand(L"QRQR", L"OTHER", L"OTHER", 0, Nothing);
  acedRegCmds->addCommand(L"KEEP", L"KEEP", L"KEEP", 0, Nothing);
  EXPECT_EQ(acrxEntryPoint(AcRx::kUnloadAppMsg, nullptr), 0);
  EXPECT_FALSE(acedRegCmds->hasGroup(L"QR"));
  EXPECT_FALSE(acedRegCmds->hasGroup(L"QRQR"));
  EXPECT_TRUE(acedRegCmds->hasGroup(L"KEEP"));
  acedRegCmds->removeGroup(L"KEEP");
}

TEST_F(EntryPoint, GoesOnAtUnloadWhenAGroupIsUnknown) {
  EXPECT_EQ(acrxEntryPoint(AcRx::kUnloadAppMsg, nullptr), 0);
  acrxEntryPoint(AcRx::kInitAppMsg, nullptr); // no row is transparent: only one of the two groups exists
  EXPECT_FALSE(acedRegCmds->hasGroup(L"QRQR"));
  EXPECT_EQ(acrxEntryPoint(AcRx::kUnloadAppMsg, nullptr), 0);
  EXPECT_FALSE(acedRegCmds->hasGroup(L"QR"));
}

TEST_F(EntryPoint, SurvivesAHostWithoutItsObjects) {
  AcRxObject* stack = acrxSysRegistry()->remove(L"ACAD_REGISTERED_COMMANDS");
  AcRxObject* linker = acrxSysRegistry()->remove(L"DynamicLinker");
  EXPECT_EQ(acrxEntryPoint(AcRx::kInitAppMsg, nullptr), 0);
  EXPECT_EQ(acrxEntryPoint(AcRx::kUnloadAppMsg, nullptr), 0);
  acrxSysRegistry()->atPut(L"ACAD_REGISTERED_COMMANDS", stack);
  acrxSysRegistry()->atPut(L"DynamicLinker", linker);
}

TEST_F(EntryPoint, AnswersEveryOtherMessageWithSuccessAndDoesNothing) {
  const std::size_t before = acedRegCmds->commands().size();
  for (const int message : {-1, 0, 3, 4, 5, 100}) EXPECT_EQ(acrxEntryPoint(message, nullptr), 0) << message;
  EXPECT_EQ(acedRegCmds->commands().size(), before);
}

TEST_F(EntryPoint, ToldTwiceKeepsOneOfEachCommand) {
  acrxEntryPoint(AcRx::kInitAppMsg, nullptr);
  const std::size_t once = acedRegCmds->commands().size();
  afx::ClearLoggedMessages();
  acrxEntryPoint(AcRx::kInitAppMsg, nullptr);
  EXPECT_EQ(acedRegCmds->commands().size(), once);
  ASSERT_FALSE(afx::LoggedMessages().empty());
  EXPECT_EQ(afx::LoggedMessages()[0].Find(L"ZPPipeManager"), 0);
}

TEST(VkDefineCommand, PutsTransparentCommandsIntoTheGroupThatGoesFirst) {
  const VkCmdTable table[] = {{L"ZP_MODAL", Nothing, 2}, {L"ZP_TRANSPARENT", Nothing, 3}};
  VkDefineCommand(L"test", table, 2, 0);
  EXPECT_EQ(acedRegCmds->lookupCmd(L"ZP_MODAL")->groupName(), L"QR");
  EXPECT_EQ(acedRegCmds->lookupCmd(L"ZP_TRANSPARENT")->groupName(), L"QRQR");
  acedRegCmds->removeGroup(L"QR");
  acedRegCmds->removeGroup(L"QRQR");
}

TEST(VkDefineCommand, RegistersTheOtherRowsWhenOneIsRefused) {
  const VkCmdTable table[] = {{L"has a blank", Nothing, 2}, {L"ZP_GOOD", Nothing, 2}};
  afx::ClearLoggedMessages();
  VkDefineCommand(L"test", table, 2, 0);
  EXPECT_EQ(afx::LoggedMessages().size(), 1u);
  EXPECT_NE(acedRegCmds->lookupCmd(L"ZP_GOOD"), nullptr);
  acedRegCmds->removeGroup(L"QR");
}

// Import as the old data's owner defines it opens no dialog, so it must leave the resources alone; so must
// the layer commands.
TEST_F(EntryPoint, HasNoCommandThatLeavesResourcesPushed) {
  const TempInstall install; // dialogs save as they go
  ScriptedEditor editor;
  acrxEntryPoint(AcRx::kInitAppMsg, nullptr);
  for (const VkCmdTable& row : CommandTable()) {
    editor.Run(row.command, {L"*cancel*"});
    EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 0u) << CString(row.command).ToUtf8();
  }
}

} // namespace
