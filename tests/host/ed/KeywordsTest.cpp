#include "host/ed/EdKeywords.h"

#include <gtest/gtest.h>

TEST(Keywords, CapitalsAreTheLeastThatMustBeTyped) {
  const EdKeywords words(L"LOck Ltype LWeight ON OFF");
  EXPECT_EQ(L"Ltype", *words.match(L"l"));
  EXPECT_EQ(L"LOck", *words.match(L"LO"));
  EXPECT_EQ(L"LWeight", *words.match(L"lweig"));
  EXPECT_EQ(L"ON", *words.match(L"_on"));
  EXPECT_FALSE(words.match(L"O"));
  EXPECT_FALSE(words.match(L"lockx"));
  EXPECT_FALSE(words.match(L""));
}

TEST(Keywords, AWordMayBeGivenInBothCases) {
  const EdKeywords words(L"R r");
  EXPECT_EQ(L"R", *words.match(L"r"));
}

TEST(Keywords, AWordWithoutCapitalsMustBeWhole) {
  const EdKeywords words(L"反向 ?");
  EXPECT_EQ(L"反向", *words.match(L"反向"));
  EXPECT_FALSE(words.match(L"反"));
  EXPECT_EQ(L"?", *words.match(L"?"));
}

TEST(Keywords, AbbreviationsAndProgramSpellings) {
  const EdKeywords words(L"LTYPE,LT 弧线(A),A _ Linetype Arc");
  EXPECT_EQ(L"Linetype", *words.match(L"lt"));
  EXPECT_EQ(L"Linetype", *words.match(L"LTYP"));
  EXPECT_EQ(L"Arc", *words.match(L"a"));
  EXPECT_EQ(L"Arc", *words.match(L"_arc"));
}
