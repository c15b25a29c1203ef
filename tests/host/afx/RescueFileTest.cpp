#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/afx/AtomicFile.h"
#include "host/afx/MessageLog.h"
#include "tests/host/afx/TemporaryFolder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class RescueFile : public testing::Test {
 protected:
  RescueFile() { afx::ClearLoggedMessages(); }

  std::string LastMessage() const {
    const auto messages = afx::LoggedMessages();
    return messages.empty() ? std::string() : messages.back().ToUtf8();
  }

  TemporaryFolder m_folder;
};

TEST_F(RescueFile, CopiesBesideTheFileAndNamesTheCopyInTheLog) {
  const std::string bytes("\0damaged\xFF", 9);
  m_folder.Put("风机.idp", bytes);
  EXPECT_EQ(afx::RescueFile(m_folder / "风机.idp"), m_folder / "风机.idp.rescued-1");
  EXPECT_EQ(m_folder.Get("风机.idp.rescued-1"), bytes);
  EXPECT_EQ(m_folder.Get("风机.idp"), bytes);
  EXPECT_THAT(LastMessage(), HasSubstr("风机.idp.rescued-1"));
}

TEST_F(RescueFile, NeverOverwritesAnEarlierCopy) {
  m_folder.Put("a", "first");
  afx::RescueFile(m_folder / "a");
  m_folder.Put("a", "second");
  EXPECT_EQ(afx::RescueFile(m_folder / "a"), m_folder / "a.rescued-2");
  std::filesystem::create_directory(m_folder.Path() / "a.rescued-3");
  std::filesystem::create_symlink("nowhere", m_folder.Path() / "a.rescued-4");
  m_folder.Put("a", "third");
  EXPECT_EQ(afx::RescueFile(m_folder / "a"), m_folder / "a.rescued-5");
  EXPECT_EQ(m_folder.Get("a.rescued-1"), "first");
  EXPECT_EQ(m_folder.Get("a.rescued-2"), "second");
  EXPECT_EQ(m_folder.Get("a.rescued-5"), "third");
  EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "nowhere"));
}

TEST_F(RescueFile, CopiesLargeFilesWhole) {
  const std::string bytes(300001, 'x');
  m_folder.Put("a", bytes);
  afx::RescueFile(m_folder / "a");
  EXPECT_EQ(m_folder.Get("a.rescued-1"), bytes);
}

TEST_F(RescueFile, GivesTheEmptyNameAndLogsTheReasonWhenItCannot) {
  EXPECT_TRUE(afx::RescueFile(m_folder / "missing").IsEmpty());
  EXPECT_THAT(LastMessage(), HasSubstr("missing"));
  EXPECT_THAT(LastMessage(), HasSubstr("文件或文件夹不存在"));
  EXPECT_TRUE(afx::RescueFile(m_folder / "").IsEmpty());
  EXPECT_THAT(LastMessage(), HasSubstr("不是普通文件"));
  const std::string longest(255, 'n');
  m_folder.Put(longest, "x");
  EXPECT_TRUE(afx::RescueFile(m_folder / longest).IsEmpty());
  EXPECT_THAT(LastMessage(), HasSubstr("文件名过长"));
  EXPECT_THAT(m_folder.Names(), ElementsAre(longest));
}

} // namespace
