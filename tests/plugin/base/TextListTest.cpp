#include <gtest/gtest.h>

#include "plugin/base/TextList.h"

namespace {

TEST(TextList, ATextIsInAListOnlyWhenItEqualsAnElement) {
  CStringArray list;
  EXPECT_FALSE(ZP::IsInTextArr(L"", list));
  list.Add(L"0");
  list.Add(L"暖-供水");
  EXPECT_TRUE(ZP::IsInTextArr(L"暖-供水", list));
  EXPECT_FALSE(ZP::IsInTextArr(L"暖", list));
  EXPECT_FALSE(ZP::IsInTextArr(L"", list));
  list.Add(L"Layer");
  EXPECT_FALSE(ZP::IsInTextArr(L"LAYER", list));
}

} // namespace
