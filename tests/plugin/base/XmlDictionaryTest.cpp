// The dictionary in memory: children, attributes, and what belongs to whom.
#include <gtest/gtest.h>

#include "plugin/base/VkDtDictionary.h"
#include "tests/plugin/base/DictionaryText.h"

namespace {

struct CountedItem : VkDtDictItem {
  explicit CountedItem(int& alive) : VkDtDictItem(L"counted", nullptr), m_alive(alive) { ++m_alive; }
  ~CountedItem() override { --m_alive; }
  int& m_alive;
};

TEST(XmlDictionary, FindDictOfAMissingNameGivesNullAndAddsNothing) {
  VkDtDictionary root(nullptr, nullptr);
  root.FindOrAddDict(L"present");
  EXPECT_EQ(root.FindDict(L"missing"), nullptr);
  EXPECT_EQ(root.FindDict(L"Present"), nullptr);
  EXPECT_EQ(root.GetLength(), 1);
}

TEST(XmlDictionary, FindOrAddDictOfAMissingNameGivesANewChildAtTheEndAndThenTheSameOne) {
  VkDtDictionary root(nullptr, nullptr);
  root.FindOrAddDict(L"first");
  VkDtDictionary* added = root.FindOrAddDict(L"second");
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(added->GetName(), L"second");
  EXPECT_TRUE(added->IsEmpty());
  EXPECT_EQ(*root.GetLast(), added);
  EXPECT_EQ(root.FindOrAddDict(L"second"), added);
  EXPECT_EQ(root.FindDict(L"second"), added);
  EXPECT_EQ(root.GetLength(), 2);
}

TEST(XmlDictionary, ANameWithAZeroInItIsFoundAgain) {
  VkDtDictionary root(nullptr, nullptr);
  const CString name(L"a\0b", 3);
  VkDtDictionary* const added = root.FindOrAddDict(name);
  EXPECT_EQ(added->GetName(), name);
  EXPECT_EQ(root.FindOrAddDict(name), added);
  EXPECT_EQ(root.FindDict(L"a"), nullptr);
}

TEST(XmlDictionary, AfterResetADictionaryHasNoChildrenAndStaysUsable) {
  VkDtDictionary root(nullptr, nullptr);
  for (int i = 0; i < 40; ++i) root.FindOrAddDict(std::to_wstring(i))->FindOrAddDict(L"below");
  root.SetAttributeValue(L"kept", L"yes");
  root.FindDict(L"39");
  root.Reset();
  EXPECT_EQ(root.GetLength(), 0);
  EXPECT_EQ(root.GetCur(), -1);
  EXPECT_EQ(root.FindDict(L"39"), nullptr);
  EXPECT_EQ(root.GetAttributeValue(L"kept"), L"yes");
  for (int i = 0; i < 40; ++i) root.FindOrAddDict(std::to_wstring(i));
  EXPECT_EQ(root.GetLength(), 40);
  EXPECT_EQ((*root.GetTo(39))->GetName(), L"39");
}

TEST(XmlDictionary, TheCursorWalksTheChildrenInListOrderAndEndsOutOfRange) {
  VkDtDictionary root(nullptr, nullptr);
  for (const wchar_t* name : {L"c", L"a", L"b"}) root.FindOrAddDict(name);
  std::wstring names;
  for (root.MoveToFirst(); root.GetCur() >= 0 && root.GetCur() < root.GetLength(); root.MoveToNext())
    names += root.GetCurData()->GetName();
  EXPECT_EQ(names, L"cab");
  EXPECT_TRUE(root.IsOut());
}

TEST(XmlDictionary, DeletingWhileWalkingMissesNoChild) {
  VkDtDictionary root(nullptr, nullptr);
  for (int i = 0; i < 30; ++i) root.FindOrAddDict(std::to_wstring(i))->SetAttributeIntValue(L"third", i % 3);
  for (root.MoveToFirst(); !root.IsOut(); root.MoveToNext()) {
    if (root.GetCurData()->GetAttributeIntValue(L"third") != 1) root.DelCur();
  }
  EXPECT_EQ(root.GetLength(), 10);
  EXPECT_EQ(root.FindDict(L"2"), nullptr);
  EXPECT_NE(root.FindDict(L"4"), nullptr);
}

TEST(XmlDictionary, FindDictPassesOverItemsThatAreNoDictionaries) {
  int alive = 0;
  {
    VkDtDictionary root(nullptr, nullptr);
    root.Append(new CountedItem(alive));
    root.Append(nullptr);
    EXPECT_EQ(root.FindDict(L"counted"), nullptr);
    VkDtDictionary* added = root.FindOrAddDict(L"counted");
    EXPECT_EQ(root.FindDict(L"counted"), added);
    EXPECT_EQ(alive, 1);
  }
  EXPECT_EQ(alive, 0);
}

// Many children are found through an index; whatever the list does to them must not leave it behind.
TEST(XmlDictionary, FindDictSeesEveryChangeOfTheListAmongManyChildren) {
  constexpr int kMany = 200;
  VkDtDictionary root(nullptr, nullptr);
  const auto add = [&](int i) { return root.FindOrAddDict(std::to_wstring(i)); };
  const auto found = [&](int i) {
    root.FindDict(std::to_wstring(i)); // the second search is by the index
    return root.FindDict(std::to_wstring(i));
  };
  for (int i = 0; i < kMany; ++i) add(i);
  for (int i = 0; i < kMany; ++i) ASSERT_EQ(found(i), *root.GetTo(i));

  root.Del(7);
  EXPECT_EQ(found(7), nullptr);

  auto* replacement = new VkDtDictionary(L"new", nullptr);
  ASSERT_NE(found(8), nullptr);
  root.MoveTo(7);
  delete root.GetCurData();
  root.GetCurData() = replacement;
  EXPECT_EQ(found(8), nullptr);
  root.FindDict(L"new");
  EXPECT_EQ(root.FindDict(L"new"), replacement);

  VkDtDictItem* const taken = root.TakeOff(7);
  EXPECT_EQ(taken, replacement);
  root.FindDict(L"new");
  EXPECT_EQ(root.FindDict(L"new"), nullptr);
  delete taken;

  auto* twin = new VkDtDictionary(L"100", nullptr); // before the one that was found
  ASSERT_NE(found(100), nullptr);
  root.InsertHead(twin);
  EXPECT_EQ(found(100), twin);
  root.ReverseList();
  EXPECT_NE(found(100), twin);

  VkDtDictionary other(nullptr, nullptr);
  root.SplitAt(50, other);
  int seen = 0;
  for (int i = 0; i < kMany; ++i) seen += found(i) != nullptr;
  EXPECT_EQ(seen, 50);
}

TEST(XmlDictionary, AttributesAreReadAsTextIntegerAndDouble) {
  VkDtDictItem item(L"item", nullptr);
  item.SetAttributeValue(L"3T4T", L"12.5mm");
  EXPECT_EQ(item.GetAttributeValue(L"3T4T"), L"12.5mm");
  EXPECT_EQ(item.GetAttributeIntValue(L"3T4T"), 12);
  EXPECT_EQ(item.GetAttributeDoubleValue(L"3T4T"), 12.5);
  EXPECT_EQ(item.GetAttributeValue(L"missing"), L"");
  EXPECT_EQ(item.GetAttributeIntValue(L"missing"), 0);
  EXPECT_EQ(item.GetAttributeDoubleValue(L"missing"), 0);
  item.SetAttributeIntValue(L"n", -2147483647 - 1);
  EXPECT_EQ(item.GetAttributeValue(L"n"), L"-2147483648");
  EXPECT_EQ(item.GetAttributeIntValue(L"n"), -2147483647 - 1);
  for (const double value : {20.0, 0.1, -0.0, 1e300, 1.0 / 3.0, 5e-324}) {
    item.SetAttributeDoubleValue(L"CAD长", value);
    EXPECT_EQ(item.GetAttributeDoubleValue(L"CAD长"), value);
  }
  item.SetAttributeDoubleValue(L"CAD长", 20);
  EXPECT_EQ(item.GetAttributeValue(L"CAD长"), L"20");
}

TEST(XmlDictionary, SettingAnAttributeReplacesItWhereItStands) {
  VkDtDictItem item(L"item", L"remark");
  for (int i = 0; i < 100; ++i) item.SetAttributeIntValue(std::to_wstring(i).c_str(), i);
  for (int i = 0; i < 100; i += 9) item.SetAttributeIntValue(std::to_wstring(i).c_str(), -i);
  ASSERT_EQ(item.GetAttributeNum(), 100);
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(item.GetAttributeName(i), std::to_wstring(i).c_str());
    EXPECT_EQ(item.GetAttributeIntValue(std::to_wstring(i).c_str()), i % 9 ? i : -i);
  }
  EXPECT_EQ(item.GetRemark(), L"remark");
}

TEST(XmlDictionary, AnAttributeTakesItsOwnTextAndNull) {
  VkDtDictItem item(nullptr, nullptr);
  item.SetAttributeValue(L"a", L"a text too long to be kept in place");
  item.SetAttributeValue(L"a", item.GetAttributeText(0));
  EXPECT_EQ(item.GetAttributeValue(L"a"), L"a text too long to be kept in place");
  item.SetAttributeValue(L"a", nullptr);
  item.SetAttributeValue(nullptr, L"of no name");
  EXPECT_EQ(item.GetAttributeValue(L"a"), L"");
  EXPECT_EQ(item.GetAttributeValue(nullptr), L"of no name");
  EXPECT_EQ(item.GetName(), L"");
}

TEST(XmlDictionary, ADeepTreeIsFreedWithoutDeepRecursion) {
  int alive = 0;
  {
    VkDtDictionary root(nullptr, nullptr);
    VkDtDictionary* at = &root;
    for (int i = 0; i < 1'000'000; ++i) at = at->FindOrAddDict(L"below");
    at->Append(new CountedItem(alive));
    root.MoveToFirst();
    root.DelCur();
    EXPECT_EQ(alive, 0);
  }
}

} // namespace
