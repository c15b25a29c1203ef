// The tree in memory: keys, values, order, removal.
#include <cmath>
#include <limits>
#include <utility>

#include <gtest/gtest.h>

#include "host/afx/CInvalidArgException.h"
#include "tests/plugin/base/TreeText.h"

namespace {

CString Number(int i) {
  CString text;
  text.Format(L"%d", i);
  return text;
}

TEST(ParameterTree, ANewTreeIsEmptyAndUsable) {
  CIDPEx tree;
  CString value = L"before";
  tree.GetValue(value);
  EXPECT_EQ(value, L"");
  EXPECT_EQ(tree.SubKeyNames.GetSize(), 0);
  EXPECT_EQ(tree.GetSubItem(L"x"), nullptr);
}

TEST(ParameterTree, AMissingKeyGives0AndKeepsThePreset) {
  CIDPEx tree;
  tree.SetSubValue(L"there", 1);
  int integer = 7;
  double number = 7.5;
  CString text = L"before";
  EXPECT_EQ(tree.GetSubValue(L"missing", integer), 0);
  EXPECT_EQ(tree.GetSubValue(L"missing", number), 0);
  EXPECT_EQ(tree.GetSubValue(L"missing", text), 0);
  EXPECT_EQ(integer, 7);
  EXPECT_EQ(number, 7.5);
  EXPECT_EQ(text, L"before");
}

TEST(ParameterTree, EachTypeComesBackThroughItsOverload) {
  CIDPEx tree;
  tree.SetSubValue(L"文本", L"镀锌钢管");
  tree.SetSubValue(L"整数", -42);
  tree.SetSubValue(L"小数", 0.1);
  CString text;
  int integer = 0;
  double number = 0;
  EXPECT_NE(tree.GetSubValue(L"文本", text), 0);
  EXPECT_NE(tree.GetSubValue(L"整数", integer), 0);
  EXPECT_NE(tree.GetSubValue(L"小数", number), 0);
  EXPECT_EQ(text, L"镀锌钢管");
  EXPECT_EQ(integer, -42);
  EXPECT_EQ(number, 0.1);
}

TEST(ParameterTree, NumbersReadThroughTheOtherNumbersOverloadAreConverted) {
  CIDPEx tree;
  double number = 0;
  tree.SetSubValue(L"k", 20);
  tree.GetSubValue(L"k", number);
  EXPECT_EQ(number, 20.0);

  const std::pair<double, int> cases[] = {{2.9, 2},
                                          {-2.9, -2},
                                          {1e300, std::numeric_limits<int>::max()},
                                          {-1e300, std::numeric_limits<int>::min()},
                                          {2147483647.5, std::numeric_limits<int>::max()},
                                          {-2147483648.0, std::numeric_limits<int>::min()},
                                          {std::nan(""), 0}};
  for (const auto& [from, to] : cases) {
    tree.SetSubValue(L"k", from);
    int integer = 99;
    tree.GetSubValue(L"k", integer);
    EXPECT_EQ(integer, to) << from;
  }
}

TEST(ParameterTree, ATextReadAsANumberGivesItsLongestValidPrefix) {
  CIDPEx tree;
  int integer = 9;
  double number = 9;
  tree.SetSubValue(L"k", L"20.5mm");
  tree.GetSubValue(L"k", integer);
  tree.GetSubValue(L"k", number);
  EXPECT_EQ(integer, 20);
  EXPECT_EQ(number, 20.5);
  tree.SetSubValue(L"k", L"DN20");
  tree.GetSubValue(L"k", integer);
  tree.GetSubValue(L"k", number);
  EXPECT_EQ(integer, 0);
  EXPECT_EQ(number, 0.0);
}

TEST(ParameterTree, ANumberReadAsATextIsItsShortestForm) {
  CIDPEx tree;
  CString text;
  tree.SetSubValue(L"k", -5);
  tree.GetSubValue(L"k", text);
  EXPECT_EQ(text, L"-5");
  tree.SetSubValue(L"k", 0.1);
  tree.GetSubValue(L"k", text);
  EXPECT_EQ(text, L"0.1");
  tree.SetSubValue(L"k", 20.0);
  tree.GetSubItem(L"k")->GetValue(text);
  EXPECT_EQ(text, L"20");
}

TEST(ParameterTree, SetSubValueOnAnExistingKeyLeavesItsSubKeysInPlace) {
  CIDPEx tree;
  tree.SetSubValue(L"a", L"");
  tree.SetSubValue(L"b", L"");
  tree.GetSubItem(L"a")->SetSubValue(L"below", 3);
  CIDPEx* before = tree.GetSubItem(L"a");
  tree.SetSubValue(L"a", 5);
  EXPECT_EQ(tree.GetSubItem(L"a"), before);
  int below = 0;
  EXPECT_NE(before->GetSubValue(L"below", below), 0);
  EXPECT_EQ(below, 3);
  ASSERT_EQ(tree.SubKeyNames.GetSize(), 2);
  EXPECT_EQ(tree.SubKeyNames.GetAt(0), L"a");
  before->ClearDataFromMemory();
  EXPECT_EQ(before->GetSubValue(L"below", below), 0);
}

TEST(ParameterTree, ClearDataFromMemoryOnASectionLeavesTheSectionInItsParent) {
  CIDPEx tree;
  tree.SetSubValue(L"管材管径方案", L"值");
  tree.SetSubValue(L"风管管材方案", L"");
  CIDPEx* section = tree.GetSubItem(L"管材管径方案");
  for (int i = 0; i < 30; ++i) section->SetSubValue(Number(i), i);
  section->ClearDataFromMemory();
  EXPECT_EQ(section->SubKeyNames.GetSize(), 0);
  EXPECT_EQ(section->GetSubItem(L"3"), nullptr);
  ASSERT_EQ(tree.SubKeyNames.GetSize(), 2);
  EXPECT_EQ(tree.SubKeyNames[0], L"管材管径方案");
  EXPECT_EQ(tree.GetSubItem(L"管材管径方案"), section);
  CString value;
  section->GetValue(value);
  EXPECT_EQ(value, L"值");
  section->SetSubValue(L"new", 1);
  EXPECT_EQ(section->SubKeyNames.GetSize(), 1);
}

TEST(ParameterTree, AKeyNamed0AndAChinesePhraseStandSideBySide) {
  CIDPEx tree;
  tree.SetSubValue(L"0", 1);
  tree.SetSubValue(L"粗糙度（毫米）", 0.2);
  int zero = 0;
  double roughness = 0;
  EXPECT_NE(tree.GetSubValue(L"0", zero), 0);
  EXPECT_NE(tree.GetSubValue(L"粗糙度（毫米）", roughness), 0);
  EXPECT_EQ(zero, 1);
  EXPECT_EQ(roughness, 0.2);
  EXPECT_EQ(tree.SubKeyNames[1], L"粗糙度（毫米）");
}

TEST(ParameterTree, NamesKeepTheOrderOfCreationAndAreUnique) {
  CIDPEx tree;
  for (const wchar_t* key : {L"c", L"a", L"b", L"a", L"c"}) tree.SetSubValue(key, 1);
  const CStringArray names = tree.SubKeyNames;
  ASSERT_EQ(names.GetSize(), 3);
  EXPECT_EQ(names[0], L"c");
  EXPECT_EQ(names[1], L"a");
  EXPECT_EQ(names[2], L"b");
}

TEST(ParameterTree, AnIndexOutsideTheNamesRaisesTheInvalidArgumentException) {
  CIDPEx tree;
  EXPECT_THROW(tree.SubKeyNames.GetAt(0), CInvalidArgException);
  tree.SetSubValue(L"a", 1);
  EXPECT_NO_THROW(tree.SubKeyNames.GetAt(0));
  EXPECT_THROW(tree.SubKeyNames[1], CInvalidArgException);
  EXPECT_THROW(tree.SubKeyNames[-1], CInvalidArgException);
}

TEST(ParameterTree, DeleteSubKeyTakesOneKeyAndKeepsTheOrderOfTheRest) {
  CIDPEx tree;
  for (const wchar_t* key : {L"a", L"b", L"c", L"d"}) tree.SetSubValue(key, 1);
  tree.GetSubItem(L"b")->SetSubValue(L"below", 1);
  EXPECT_NE(tree.DeleteSubKey(L"b"), 0);
  EXPECT_EQ(tree.DeleteSubKey(L"b"), 0);
  EXPECT_EQ(tree.GetSubItem(L"b"), nullptr);
  ASSERT_EQ(tree.SubKeyNames.GetSize(), 3);
  EXPECT_EQ(tree.SubKeyNames[1], L"c");
  tree.SetSubValue(L"b", 2);
  EXPECT_EQ(tree.SubKeyNames[3], L"b");
  EXPECT_EQ(tree.GetSubItem(L"b")->SubKeyNames.GetSize(), 0);
}

// Against a plain list, with keys of a numbered list and others, below and above the size that needs an
// index.
TEST(ParameterTree, ARandomMixOfSettingAndDeletingKeepsNamesOrderAndValues) {
  unsigned state = 12345;
  const auto random = [&](unsigned below) {
    return (state = state * 1664525u + 1013904223u) / 65536u % below;
  };
  for (int round = 0; round < 40; ++round) {
    CIDPEx tree;
    std::vector<std::pair<std::wstring, int>> expected;
    const unsigned keys = round % 2 ? 12 : 200;
    for (int step = 0; step < 1500; ++step) {
      const unsigned k = random(keys);
      const std::wstring key =
          round % 4 < 2 ? std::to_wstring(k) : L"键名" + std::to_wstring(k) + L"足够长的名字";
      const auto at =
          std::find_if(expected.begin(), expected.end(), [&](const auto& e) { return e.first == key; });
      if (random(100) < 45) {
        ASSERT_EQ(tree.DeleteSubKey(key) != 0, at != expected.end());
        if (at != expected.end()) expected.erase(at);
      } else {
        tree.SetSubValue(key, step);
        if (at != expected.end())
          at->second = step;
        else
          expected.emplace_back(key, step);
      }
      ASSERT_EQ(tree.SubKeyNames.GetSize(), static_cast<int>(expected.size()));
      if (step % 50 != 0) continue;
      for (std::size_t i = 0; i < expected.size(); ++i) {
        ASSERT_EQ(tree.SubKeyNames[static_cast<int>(i)], expected[i].first.c_str());
        int value = -1;
        ASSERT_NE(tree.GetSubValue(expected[i].first, value), 0);
        ASSERT_EQ(value, expected[i].second);
      }
    }
  }
}

TEST(ParameterTree, ANumberedListKnowsNoOtherWritingOfItsNumbers) {
  CIDPEx tree;
  for (int i = 0; i < 30; ++i) tree.SetSubValue(Number(i), i);
  for (const wchar_t* key : {L"01", L"+1", L" 1", L"1 ", L"30", L"", L"-0", L"4294967296", L"１"}) {
    EXPECT_EQ(tree.GetSubItem(key), nullptr) << CString(key).ToUtf8();
  }
  EXPECT_NE(tree.GetSubItem(L"29"), nullptr);
  tree.SetSubValue(L"01", 100);
  int value = 0;
  tree.GetSubValue(L"1", value);
  EXPECT_EQ(value, 1);
  tree.GetSubValue(L"01", value);
  EXPECT_EQ(value, 100);
}

TEST(ParameterTree, ABorrowedNodeStaysWhereItIsWhileItsParentGrows) {
  CIDPEx tree;
  tree.SetSubValue(L"first", 1);
  CIDPEx* first = tree.GetSubItem(L"first");
  for (int i = 0; i < 1000; ++i) tree.SetSubValue(L"k" + Number(i), i);
  EXPECT_EQ(tree.GetSubItem(L"first"), first);
  first->SetValue(L"new");
  CString value;
  tree.GetSubValue(L"first", value);
  EXPECT_EQ(value, L"new");
}

TEST(ParameterTree, AnyTextComesBackFromKeysAndValues) {
  const std::wstring texts[] = {L"",
                                std::wstring(L"\0", 1),
                                std::wstring(L"a\0b", 3),
                                L"\"\\\n\t\x01\x7f",
                                L" 空 格 ",
                                L"\U0001F600\U0010FFFF",
                                std::wstring(1, wchar_t(0xD800)),
                                std::wstring(1, wchar_t(0xDFFF)),
                                std::wstring{wchar_t(0xDC80), wchar_t(0xD83D)},
                                std::wstring(5000, L'长'),
                                L"15 bytes exactl",
                                L"16 bytes exactly"};
  CIDPEx tree;
  for (const std::wstring& text : texts) tree.SetSubValue(text, CString(text));
  ASSERT_EQ(tree.SubKeyNames.GetSize(), static_cast<int>(std::size(texts)));
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    EXPECT_EQ(tree.SubKeyNames[static_cast<int>(i)], CString(texts[i]));
    CString value = L"?";
    EXPECT_NE(tree.GetSubValue(texts[i], value), 0);
    EXPECT_EQ(value, CString(texts[i]));
  }
}

TEST(ParameterTree, APairOfSurrogatesIsTheCharacterThatItMeans) {
  CIDPEx tree;
  tree.SetValue(std::wstring{wchar_t(0xD83D), wchar_t(0xDE00)});
  CString value;
  tree.GetValue(value);
  EXPECT_EQ(value, L"\U0001F600");
}

TEST(ParameterTree, WhatIsNoCodePointBecomesTheReplacementCharacter) {
  CIDPEx tree;
  tree.SetValue(std::wstring{wchar_t(0x110000), wchar_t(-1)});
  CString value;
  tree.GetValue(value);
  EXPECT_EQ(value, L"\uFFFD\uFFFD");
}

TEST(ParameterTree, TheThreeTreeOperationsAreReachedThroughTheCompanion) {
  CIDPEx tree;
  tree.SetSubValue(L"a", 1);
  CInterDpData& companion = tree;
  EXPECT_NE(companion.DeleteSubKey(L"a"), 0);
  EXPECT_NE(companion.ClearDataFromMemory(), 0);
  EXPECT_EQ(companion.ReadDataFromBuffer(nullptr), 0);
  EXPECT_NE(dynamic_cast<CIDPEx*>(&companion), nullptr);
}

TEST(ParameterTree, AMillionLevelsAreBuiltRefusedForWritingAndFreed) {
  CIDPEx tree;
  CIDPEx* at = &tree;
  for (int i = 0; i < 1000000; ++i) {
    at->SetSubValue(L"a", 1);
    at = at->GetSubItem(L"a");
  }
  std::string image = "before";
  EXPECT_EQ(tree.WriteDataToBuffer(image), 0);
  EXPECT_TRUE(image.empty());
  EXPECT_EQ(at->WriteDataToBuffer(image), 1);
}

TEST(ParameterTree, EmptyingALargeNodeKeyByKeyTakesNoQuadraticTime) {
  constexpr int count = 200000; // quadratic work would take minutes
  CIDPEx tree;
  for (int i = 0; i < count; ++i) tree.SetSubValue(L"k" + Number(i), i);
  for (int i = 1; i < count; i += 2) ASSERT_NE(tree.DeleteSubKey(L"k" + Number(i)), 0);
  while (tree.SubKeyNames.GetSize() > 0) ASSERT_NE(tree.DeleteSubKey(tree.SubKeyNames[0]), 0);
  EXPECT_TRUE(tree.SubKeyNames.IsEmpty());
}

} // namespace
