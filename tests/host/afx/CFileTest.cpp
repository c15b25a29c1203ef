#include "host/afx/CFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/afx/CFileException.h"
#include "tests/host/afx/TemporaryFolder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class RenameFile : public testing::Test {
 protected:
  // What the exception says; empty where none was raised.
  std::string Refusal(const CString& from, const CString& to) {
    try {
      CFile::Rename(from, to);
    } catch (const CFileException& failure) {
      EXPECT_STREQ(failure.Message().ToUtf8().c_str(), failure.what());
      return failure.what();
    }
    return "";
  }
  TemporaryFolder folder;
};

TEST_F(RenameFile, GivesItAFreeName) {
  folder.Put("旧.idp", "a");
  EXPECT_EQ(Refusal(folder / "旧.idp", folder / "新.idp"), "");
  EXPECT_THAT(folder.Names(), ElementsAre("新.idp"));
  EXPECT_EQ(folder.Get("新.idp"), "a");
}

TEST_F(RenameFile, NeverReplacesAnother) {
  folder.Put("a", "1");
  folder.Put("b", "2");
  EXPECT_THAT(Refusal(folder / "a", folder / "b"), HasSubstr("已有同名的文件"));
  EXPECT_EQ(folder.Get("a"), "1");
  EXPECT_EQ(folder.Get("b"), "2");
}

TEST_F(RenameFile, TakesTheNameThatItHas) {
  folder.Put("a", "1");
  EXPECT_EQ(Refusal(folder / "a", folder / "a"), "");
  EXPECT_EQ(folder.Get("a"), "1");
  EXPECT_THAT(Refusal(folder / "没有", folder / "没有"), HasSubstr("不存在"));
}

TEST_F(RenameFile, TellsBothNamesAndTheReason) {
  const std::string refusal = Refusal(folder / "没有", folder / "b");
  EXPECT_THAT(refusal, HasSubstr("无法把文件“"));
  EXPECT_THAT(refusal, HasSubstr("没有”改名为“"));
  EXPECT_THAT(refusal, HasSubstr("不存在"));
  folder.Put("a", "1");
  EXPECT_THAT(Refusal(folder / "a", folder / "x/b"), HasSubstr("不存在"));
  EXPECT_THAT(Refusal(folder / "a", folder / std::string(300, 'x')), HasSubstr("文件名过长"));
}

TEST_F(RenameFile, RefusesANameWithAZeroInIt) {
  folder.Put("a", "1");
  EXPECT_NE(Refusal(folder / "a", (folder / "b") + CString(std::wstring(L"\0c", 2))), "");
  EXPECT_THAT(folder.Names(), ElementsAre("a"));
}

} // namespace
