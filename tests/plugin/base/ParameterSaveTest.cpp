// What a save does to the file that it replaces.
#include <gmock/gmock.h>

#include "host/afx/MessageLog.h"
#include "plugin/base/VersionMark.h"
#include "tests/plugin/base/TemporaryFolder.h"
#include "tests/plugin/base/TreeText.h"

namespace {

using testing::Contains;
using testing::HasSubstr;

std::vector<std::string> Messages() {
  std::vector<std::string> messages;
  for (const CString& message : afx::LoggedMessages()) messages.push_back(message.ToUtf8());
  return messages;
}

int SaveSomething(const CString& path, int value = 1) {
  CIDPEx tree;
  tree.SetSubValue(L"a", value);
  return tree.Save(path);
}

TEST(ParameterSave, ADamagedFileIsCopiedBeforeAnotherTreeReplacesItAndTheLogNamesTheCopy) {
  const TemporaryFolder folder;
  folder.Write("a.idp", "[\"\",{\"precious");
  CIDPEx reader;
  EXPECT_EQ(reader.Open(folder.Path("a.idp")), 0);
  afx::ClearLoggedMessages();
  EXPECT_NE(SaveSomething(folder.Path("a.idp")), 0);
  EXPECT_EQ(folder.Read("a.idp.rescued-1"), "[\"\",{\"precious");
  EXPECT_EQ(folder.Read("a.idp"), "[\"\",{\"a\":1}]\n");
  EXPECT_THAT(Messages(), Contains(HasSubstr("a.idp.rescued-1")));
}

TEST(ParameterSave, ADamagedFileThatNobodyOpenedIsCopiedToo) {
  const TemporaryFolder folder;
  folder.Write("a.idp", "not JSON");
  EXPECT_NE(SaveSomething(folder.Path("a.idp")), 0);
  EXPECT_EQ(folder.Read("a.idp.rescued-1"), "not JSON");
}

TEST(ParameterSave, OnlyTheFirstSaveAfterTheDamageMakesACopy) {
  const TemporaryFolder folder;
  folder.Write("a.idp", "not JSON");
  EXPECT_NE(SaveSomething(folder.Path("a.idp")), 0);
  EXPECT_NE(SaveSomething(folder.Path("a.idp"), 2), 0);
  EXPECT_FALSE(folder.Has("a.idp.rescued-2"));
  folder.Write("a.idp", "again not");
  EXPECT_NE(SaveSomething(folder.Path("a.idp"), 3), 0);
  EXPECT_EQ(folder.Read("a.idp.rescued-1"), "not JSON");
  EXPECT_EQ(folder.Read("a.idp.rescued-2"), "again not");
}

// In the same instant, with the same size: only the content tells.
TEST(ParameterSave, ADamageRightAfterAGoodSaveIsSeen) {
  const TemporaryFolder folder;
  for (int i = 0; i < 20; ++i) {
    ASSERT_NE(SaveSomething(folder.Path("a.idp")), 0);
    std::string bytes = folder.Read("a.idp");
    bytes[3] = '?';
    folder.Write("a.idp", bytes);
    ASSERT_NE(SaveSomething(folder.Path("a.idp")), 0);
    ASSERT_EQ(folder.Read("a.idp.rescued-" + std::to_string(i + 1)), bytes);
  }
}

TEST(ParameterSave, AGoodFileIsReplacedWithoutACopyWhoeverWroteIt) {
  const TemporaryFolder folder;
  folder.Write("a.idp", "[\"by hand\",{}]");
  EXPECT_NE(SaveSomething(folder.Path("a.idp")), 0);
  EXPECT_FALSE(folder.Has("a.idp.rescued-1"));
}

TEST(ParameterSave, WhatCanNeitherBeReadNorCopiedStaysAndTheSaveGives0) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink("a.idp", folder.Native("a.idp")); // leads to itself
  EXPECT_EQ(SaveSomething(folder.Path("a.idp")), 0);
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Native("a.idp")));
}

TEST(ParameterSave, AFileWithAForeignVersionMarkIsCopiedAtTheNextSave) {
  const TemporaryFolder folder;
  const std::string foreign = "[\"\",{\"Version\":\"9.0\",\"new\":1}]";
  folder.Write("a.idp", foreign);
  const CString path = folder.Path("a.idp");
  CIDPEx tree;
  ASSERT_NE(tree.Open(path), 0);
  CString version;
  tree.GetSubValue(L"Version", version);
  afx::ClearLoggedMessages();
  EXPECT_FALSE(ZP::CheckVersionMark(path, version, {L"1.0"}));
  EXPECT_THAT(Messages(), Contains(testing::AllOf(HasSubstr("a.idp"), HasSubstr("9.0"))));
  CIDPEx again; // a second reader, before the save, does not make it less foreign
  ASSERT_NE(again.Open(path), 0);
  EXPECT_NE(SaveSomething(path), 0);
  EXPECT_EQ(folder.Read("a.idp.rescued-1"), foreign);
  EXPECT_NE(SaveSomething(path, 2), 0);
  EXPECT_FALSE(folder.Has("a.idp.rescued-2"));
}

TEST(ParameterSave, AKnownVersionMarkNeedsNoCopy) {
  const TemporaryFolder folder;
  folder.Write("a.idp", "[\"Version:1.0\",{}]");
  EXPECT_TRUE(ZP::CheckVersionMark(folder.Path("a.idp"), L"Version:1.0", {L"Version:2.0", L"Version:1.0"}));
  EXPECT_NE(SaveSomething(folder.Path("a.idp")), 0);
  EXPECT_FALSE(folder.Has("a.idp.rescued-1"));
}

TEST(ParameterSave, MissingFoldersAreMade) {
  const TemporaryFolder folder;
  EXPECT_NE(SaveSomething(folder.Path("Data") + L"\\LayerManager\\默认方案.idp"), 0);
  EXPECT_EQ(folder.Read("Data/LayerManager/默认方案.idp"), "[\"\",{\"a\":1}]\n");
}

TEST(ParameterSave, ASaveThatFailsGives0AndKeepsTheOldFile) {
  const TemporaryFolder folder;
  ASSERT_NE(SaveSomething(folder.Path("a.idp")), 0);
  EXPECT_EQ(SaveSomething(folder.Path("a.idp") + L"/below/a/file.idp", 2), 0);
  EXPECT_EQ(folder.Read("a.idp"), "[\"\",{\"a\":1}]\n");
  EXPECT_EQ(SaveSomething(L""), 0);
}

TEST(ParameterSave, NothingIsLeftBesideTheFile) {
  const TemporaryFolder folder;
  for (int i = 0; i < 3; ++i) ASSERT_NE(SaveSomething(folder.Path("a.idp"), i), 0);
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder.Native(""))) {
    EXPECT_EQ(entry.path().filename(), "a.idp");
    ++files;
  }
  EXPECT_EQ(files, 1);
}

} // namespace
