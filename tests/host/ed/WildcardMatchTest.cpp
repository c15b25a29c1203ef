#include "host/ed/WildcardMatch.h"

#include <gtest/gtest.h>

#include <string>

TEST(WildcardMatch, EveryElement) {
  EXPECT_TRUE(acutWcMatch(L"采暖-供水", L"采暖*"));
  EXPECT_TRUE(acutWcMatch(L"采暖-供水", L"*水"));
  EXPECT_TRUE(acutWcMatch(L"DN25", L"DN##"));
  EXPECT_FALSE(acutWcMatch(L"DN2", L"DN##"));
  EXPECT_TRUE(acutWcMatch(L"A-1", L"@.#"));
  EXPECT_TRUE(acutWcMatch(L"b", L"[abc]"));
  EXPECT_TRUE(acutWcMatch(L"q", L"[~abc]"));
  EXPECT_TRUE(acutWcMatch(L"m", L"[a-z]"));
  EXPECT_TRUE(acutWcMatch(L"a*b", L"a`*b"));
  EXPECT_FALSE(acutWcMatch(L"axb", L"a`*b"));
  EXPECT_TRUE(acutWcMatch(L"x", L"?"));
  EXPECT_FALSE(acutWcMatch(L"", L"?"));
  EXPECT_TRUE(acutWcMatch(L"", L"*"));
  EXPECT_TRUE(acutWcMatch(L"墙", L"~窗"));
  EXPECT_FALSE(acutWcMatch(L"窗", L"~窗"));
  EXPECT_TRUE(acutWcMatch(L"b", L"a,b,c"));
  EXPECT_FALSE(acutWcMatch(L"d", L"a,b,c"));
  EXPECT_FALSE(acutWcMatch(nullptr, L"*"));
}

TEST(WildcardMatch, CaseCountsUnlessIgnored) {
  EXPECT_FALSE(acutWcMatch(L"line", L"LINE"));
  EXPECT_TRUE(ed::MatchesPattern(L"line", L"LI*", true));
  EXPECT_TRUE(ed::MatchesPattern(L"B", L"[a-c]", true));
}

TEST(WildcardMatch, AnUnclosedSetIsItself) {
  EXPECT_TRUE(acutWcMatch(L"[a", L"[a"));
}

TEST(WildcardMatch, ManyStarsStayCheap) {
  const std::wstring text(20000, L'a');
  std::wstring pattern;
  for (int i = 0; i < 500; ++i) pattern += L"a*";
  EXPECT_FALSE(ed::MatchesPattern(text, pattern + L"b", false));
}
