#include "host/ed/PlugInMenu.h"

#include <gtest/gtest.h>

#include "host/afx/AtomicFile.h"
#include "tests/support/TempInstall.h"

namespace {

TEST(PlugInMenu, HoldsMenusWithCommandsAndTitles) {
  const auto groups =
      ed::ParseMenuFile("# remark\nEARLY no menu yet\n[管道]\nA_B 管 径\r\n\n[]\nnothing\nX\tY\n");
  ASSERT_EQ(2u, groups.size());
  EXPECT_EQ(CString(L"管道"), groups[0].title);
  ASSERT_EQ(1u, groups[0].entries.size());
  EXPECT_EQ(CString(L"A_B"), groups[0].entries[0].command);
  EXPECT_EQ(CString(L"管 径"), groups[0].entries[0].title);
  ASSERT_EQ(1u, groups[1].entries.size());
}

TEST(PlugInMenu, GivesTheTitleOfACommandWhateverTheCase) {
  const auto menus = ed::ParseMenuFile("[甲]\nA 一\n[乙]\nB 二\nA 三\n");
  EXPECT_EQ(ed::TitleIn(menus, L"a"), L"一");
  EXPECT_EQ(ed::TitleIn(menus, L"B"), L"二");
  EXPECT_EQ(ed::TitleIn(menus, L"C"), L"");
}

TEST(PlugInMenu, StandsBesideThePlugIn) {
  TempInstall install;
  install.Write("some.plugin.menu", "[菜单]\nHELLO 问好\n");
  const CString folder = CString::FromUtf8(install.Root().string());
  EXPECT_EQ(ed::TitleIn(ed::ReadPlugInMenu(folder + L"/some.plugin.so"), L"HELLO"), L"问好");
  EXPECT_TRUE(ed::ReadPlugInMenu(folder + L"/other.so").empty());
}

} // namespace
