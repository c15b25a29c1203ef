// The remembered defaults, with the file that stands for "the next run of the program".
#include <cstdlib>

#include <gtest/gtest.h>

#include "plugin/base/CIDPEx.h"
#include "plugin/base/DefaultValues.h"
#include "tests/plugin/base/TemporaryFolder.h"

namespace {

class DefaultValues : public testing::Test {
 protected:
  void SetUp() override { ZP::SetDefaultValuesFile(m_folder.Path("a/Defaults.idp")); }
  void TearDown() override { ZP::SetDefaultValuesFile(L""); }
  void StartAgain() { SetUp(); }

  TemporaryFolder m_folder;
};

TEST_F(DefaultValues, AKeyThatWasNeverSetKeepsThePreset) {
  double number = 95;
  CString text = L"卧式";
  EXPECT_EQ(ZP::GetDefaultValue(L"传统采暖/散热器计算/供水温度", number), 0);
  EXPECT_EQ(ZP::GetDefaultValue(L"空调水路\\风机盘管", text), 0);
  EXPECT_EQ(number, 95);
  EXPECT_EQ(text, L"卧式");
  EXPECT_FALSE(m_folder.Has("a/Defaults.idp"));
}

TEST_F(DefaultValues, ValuesAreThereInTheNextRun) {
  EXPECT_NE(ZP::SetDefaultValue(L"传统采暖/散热器计算/供水温度", 80.1), 0);
  EXPECT_NE(ZP::SetDefaultValue(L"空调水路\\风机盘管\\管理器\\安装形式过滤", L"卧式暗装"), 0);
  StartAgain();
  double number = 0;
  CString text;
  EXPECT_NE(ZP::GetDefaultValue(L"传统采暖/散热器计算/供水温度", number), 0);
  EXPECT_NE(ZP::GetDefaultValue(L"空调水路\\风机盘管\\管理器\\安装形式过滤", text), 0);
  EXPECT_EQ(number, 80.1);
  EXPECT_EQ(text, L"卧式暗装");
}

TEST_F(DefaultValues, TheSeparatorIsPartOfTheKey) {
  ZP::SetDefaultValue(L"a\\b", 1.0);
  ZP::SetDefaultValue(L"a/b", 2.0);
  double number = 0;
  ZP::GetDefaultValue(L"a\\b", number);
  EXPECT_EQ(number, 1.0);
  ZP::GetDefaultValue(L"a/b", number);
  EXPECT_EQ(number, 2.0);
}

TEST_F(DefaultValues, AKeyMayBeCalledVersion) {
  ZP::SetDefaultValue(L"Version", L"9");
  StartAgain();
  CString text;
  EXPECT_NE(ZP::GetDefaultValue(L"Version", text), 0);
  EXPECT_EQ(text, L"9");
}

TEST_F(DefaultValues, WhatAnotherProgramWroteMeanwhileIsKept) {
  ZP::SetDefaultValue(L"one", 1.0);
  CIDPEx other;
  ASSERT_NE(other.Open(m_folder.Path("a/Defaults.idp")), 0);
  other.SetSubValue(L"two", 2.0);
  ASSERT_NE(other.Save(m_folder.Path("a/Defaults.idp")), 0);
  ZP::SetDefaultValue(L"three", 3.0);
  StartAgain();
  double number = 0;
  for (const wchar_t* key : {L"one", L"two", L"three"}) EXPECT_NE(ZP::GetDefaultValue(key, number), 0);
}

TEST_F(DefaultValues, AnUnchangedValueIsNotWrittenAgain) {
  ZP::SetDefaultValue(L"k", 1.0);
  std::filesystem::remove(m_folder.Native("a/Defaults.idp"));
  EXPECT_NE(ZP::SetDefaultValue(L"k", 1.0), 0);
  EXPECT_FALSE(m_folder.Has("a/Defaults.idp"));
}

TEST_F(DefaultValues, AValueThatTheDiskRefusesHoldsForThisRunAndIsWrittenWhenItCan) {
  m_folder.Write("barrier", "");
  ZP::SetDefaultValuesFile(m_folder.Path("barrier/Defaults.idp")); // below a file no file can be
  EXPECT_EQ(ZP::SetDefaultValue(L"one", 1.0), 0);
  EXPECT_EQ(ZP::SetDefaultValue(L"one", 1.0), 0);
  double number = 0;
  EXPECT_NE(ZP::GetDefaultValue(L"one", number), 0);
  EXPECT_EQ(number, 1.0);
  std::filesystem::remove(m_folder.Native("barrier"));
  EXPECT_NE(ZP::SetDefaultValue(L"two", L"2"), 0);
  ZP::SetDefaultValuesFile(m_folder.Path("barrier/Defaults.idp"));
  EXPECT_NE(ZP::GetDefaultValue(L"one", number), 0);
}

TEST_F(DefaultValues, ADamagedOrForeignFileIsKeptAsideAndReplaced) {
  std::filesystem::create_directories(m_folder.Native("a"));
  m_folder.Write("a/Defaults.idp", "broken");
  EXPECT_NE(ZP::SetDefaultValue(L"k", 1.0), 0);
  EXPECT_EQ(m_folder.Read("a/Defaults.idp.rescued-1"), "broken");
  m_folder.Write("a/Defaults.idp", "[\"Version:7.0\",{\"k\":[5,{\"x\":1}]}]");
  StartAgain();
  double number = 3;
  EXPECT_EQ(ZP::GetDefaultValue(L"k", number), 0);
  EXPECT_NE(ZP::SetDefaultValue(L"k", 1.0), 0);
  EXPECT_EQ(m_folder.Read("a/Defaults.idp.rescued-2"), "[\"Version:7.0\",{\"k\":[5,{\"x\":1}]}]");
}

TEST_F(DefaultValues, WithoutAFileOfItsOwnTheStoreLiesInTheUsersDataFolder) {
  const char* before = std::getenv("XDG_DATA_HOME");
  const std::string kept = before ? before : "";
  ::setenv("XDG_DATA_HOME", m_folder.Native("xdg").c_str(), 1);
  ZP::SetDefaultValuesFile(L"");
  EXPECT_NE(ZP::SetDefaultValue(L"k", 1.0), 0);
  EXPECT_TRUE(m_folder.Has("xdg/zppipemanager/Defaults.idp"));
  if (before)
    ::setenv("XDG_DATA_HOME", kept.c_str(), 1);
  else
    ::unsetenv("XDG_DATA_HOME");
}

} // namespace
