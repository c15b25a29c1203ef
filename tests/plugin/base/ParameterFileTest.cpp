// The text of a parameter file: what is written and what is read. What is refused is in
// ParameterDamageTest.cpp.
#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include "host/afx/MessageLog.h"
#include "tests/plugin/base/TemporaryFolder.h"
#include "tests/plugin/base/TreeText.h"

namespace {

using testing::HasSubstr;

// The last message of the log.
std::string LastMessage() {
  const auto messages = afx::LoggedMessages();
  return messages.empty() ? std::string() : messages.back().ToUtf8();
}

TEST(ParameterFile, TheTextIsTheDocumentedForm) {
  CIDPEx tree;
  EXPECT_EQ(TreeText(tree), "[\"\",{}]\n");
  tree.SetValue(L"Version:1.0");
  tree.SetSubValue(L"文本", L"a\"b");
  tree.SetSubValue(L"整数", 20);
  tree.SetSubValue(L"小数", 20.0);
  tree.SetSubValue(L"表", L"");
  CIDPEx* list = tree.GetSubItem(L"表");
  list->SetSubValue(L"0", 0);
  list->GetSubItem(L"0")->SetSubValue(L"DN", 15);
  list->GetSubItem(L"0")->SetSubValue(L"内径", 15.75);
  EXPECT_EQ(TreeText(tree), "[\"Version:1.0\",{\"文本\":\"a\\\"b\",\"整数\":20,\"小数\":20.0,\n"
                            "\"表\":[\"\",{\n"
                            "\"0\":[0,{\"DN\":15,\"内径\":15.75}]}]}]\n");
}

TEST(ParameterFile, ARichTreeComesBackFromItsFile) {
  const TemporaryFolder folder;
  CIDPEx tree;
  FillRichSample(tree);
  ASSERT_NE(tree.Save(folder.Path("a.idp")), 0);
  CIDPEx read;
  ASSERT_NE(read.Open(folder.Path("a.idp")), 0);
  EXPECT_EQ(TreeText(read), TreeText(tree));
  EXPECT_EQ(read.SubKeyNames.GetSize(), tree.SubKeyNames.GetSize());
  CString value;
  read.GetSubValue(std::wstring(1, wchar_t(0xD800)), value);
  EXPECT_EQ(value, CString(std::wstring{wchar_t(0xDC00), L'x', wchar_t(0xDBFF)}));
  double zero = 1;
  read.GetSubValue(L"负零", zero);
  EXPECT_TRUE(zero == 0 && std::signbit(zero));
}

TEST(ParameterFile, EveryDoubleReadsBackExactly) {
  unsigned long long state = 88172645463325252ull;
  CIDPEx tree;
  std::vector<double> values = {
      5e-324, 2.2250738585072014e-308, 1e22, 1e23, 9007199254740993.0, -2116178168839186432.0, 0.1, -0.0,
      1e-7};
  while (values.size() < 20000) {
    state ^= state << 13, state ^= state >> 7, state ^= state << 17;
    const double value = std::bit_cast<double>(state);
    if (std::isfinite(value)) values.push_back(value);
  }
  for (std::size_t i = 0; i < values.size(); ++i) tree.SetSubValue(std::to_wstring(i), values[i]);
  CIDPEx read;
  ASSERT_TRUE(ReadText(read, TreeText(tree)));
  for (std::size_t i = 0; i < values.size(); ++i) {
    double value = 1;
    ASSERT_NE(read.GetSubValue(std::to_wstring(i), value), 0);
    ASSERT_EQ(std::bit_cast<unsigned long long>(value), std::bit_cast<unsigned long long>(values[i]));
  }
}

TEST(ParameterFile, ADoubleMayHaveAnyNumberOfDigits) {
  const std::string zeros(300, '0');
  const std::pair<std::string, double> cases[] = {
      {"3.14159265358979323846264338327950288419716939937510", 3.141592653589793},
      {"12345678901234567890123.5", 12345678901234567890123.5},
      {"-2116178168839186432.0", -2116178168839186432.0},
      {"0.000000000000000000000000000000000000012345678901234567890123", 1.2345678901234567890123e-38},
      {"1" + zeros + ".0", 1e300},
      {"1" + zeros + "e-300", 1.0},
      {"1e-400", 0.0},
  };
  for (const auto& [digits, expected] : cases) {
    CIDPEx tree;
    ASSERT_TRUE(ReadText(tree, "[\"\",{\"a\":" + digits + "}]")) << digits;
    double value = 99;
    tree.GetSubValue(L"a", value);
    EXPECT_EQ(value, expected) << digits;
  }
  CIDPEx tree;
  EXPECT_FALSE(ReadText(tree, "[\"\",{\"a\":1" + zeros + zeros + ".0}]"));
}

TEST(ParameterFile, NumbersThatAreNotFiniteHaveAFormOfTheirOwn) {
  CIDPEx tree;
  tree.SetSubValue(L"a", std::nan(""));
  tree.SetSubValue(L"b", std::numeric_limits<double>::infinity());
  tree.SetSubValue(L"c", -std::numeric_limits<double>::infinity());
  tree.GetSubItem(L"c")->SetSubValue(L"d", 1);
  EXPECT_EQ(TreeText(tree), "[\"\",{\"a\":{\"double\":\"nan\"},\"b\":{\"double\":\"inf\"},\n"
                            "\"c\":[{\"double\":\"-inf\"},{\"d\":1}]}]\n");
  CIDPEx read;
  ASSERT_TRUE(ReadText(read, TreeText(tree)));
  double a = 0, b = 0, c = 0;
  read.GetSubValue(L"a", a);
  read.GetSubValue(L"b", b);
  read.GetSubValue(L"c", c);
  EXPECT_TRUE(std::isnan(a));
  EXPECT_EQ(b, std::numeric_limits<double>::infinity());
  EXPECT_EQ(c, -std::numeric_limits<double>::infinity());
}

TEST(ParameterFile, WhatAnEditorMayChangeIsUnderstood) {
  const std::pair<std::string, std::string> cases[] = {
      {"\xEF\xBB\xBF[\"\",{\"a\":1}]", "[\"\",{\"a\":1}]\n"}, // byte order mark
      {" [ \"x\" ,\r\n\t{ \"a\" : 1 , \"b\" : [ 2 , { } ] } ] \n", "[\"x\",{\"a\":1,\"b\":2}]\n"}, // blanks
      {R"(["",{"\u4e2d\u6587":"\ud83d\ude00\/\b\f\n\r\t"}])",
       "[\"\",{\"中文\":\"😀/\\u0008\\u000c\\n\\u000d\\u0009\"}]\n"},
      {R"([1.5e2,{"a":-0,"b":1E5,"c":-0.0}])", "[150.0,{\"a\":0,\"b\":1e+05,\"c\":-0.0}]\n"},
      {R"(["",{"\uD800":"\udc00\ud800\u0041"}])", "[\"\",{\"\\ud800\":\"\\udc00\\ud800A\"}]\n"},
      {R"(["",{"\ud800\ud800\udc00":"\u0000"}])", "[\"\",{\"\\ud800\U00010000\":\"\\u0000\"}]\n"},
  };
  for (const auto& [text, written] : cases) {
    CIDPEx tree;
    EXPECT_TRUE(ReadText(tree, text)) << text << LastMessage();
    EXPECT_EQ(TreeText(tree), written) << text;
  }
}

std::string Nested(int nodes) {
  std::string text = R"(["",{})";
  text.pop_back();
  for (int i = 2; i < nodes; ++i) text += R"("a":["",{)";
  if (nodes > 1) text += "\"a\":1";
  for (int i = 1; i < std::max(nodes, 2); ++i) text += "}]";
  return text;
}

TEST(ParameterFile, NestingIsReadAndWrittenToADepthOf1024AndRefusedBeyond) {
  CIDPEx tree;
  EXPECT_TRUE(ReadText(tree, Nested(1024)));
  EXPECT_EQ(TreeText(tree).size() > 1024, true);
  EXPECT_FALSE(ReadText(tree, Nested(1025)));
  EXPECT_THAT(LastMessage(), HasSubstr("1024"));
  EXPECT_FALSE(ReadText(tree, Nested(1000000)));
  EXPECT_FALSE(ReadText(tree, std::string(1000000, '[')));
  EXPECT_FALSE(ReadText(tree, std::string(1000000, '{')));
}

TEST(ParameterFile, ATreeOf1024LevelsIsSavedAndADeeperOneIsRefusedKeepingTheOldFile) {
  const TemporaryFolder folder;
  CIDPEx tree;
  CIDPEx* at = &tree;
  for (int level = 2; level <= 1024; ++level) {
    at->SetSubValue(L"a", level);
    at = at->GetSubItem(L"a");
  }
  ASSERT_NE(tree.Save(folder.Path("a.idp")), 0);
  CIDPEx read;
  ASSERT_NE(read.Open(folder.Path("a.idp")), 0);
  EXPECT_EQ(TreeText(read), TreeText(tree));
  const std::string before = folder.Read("a.idp");
  at->SetSubValue(L"a", 1);
  EXPECT_EQ(tree.Save(folder.Path("a.idp")), 0);
  EXPECT_EQ(folder.Read("a.idp"), before);
}

TEST(ParameterFile, AFileLongerThan256MiBIsRefused) {
  const TemporaryFolder folder;
  folder.Write("a.idp", "[\"\",{}]");
  std::filesystem::resize_file(folder.Native("a.idp"), 256ull * 1024 * 1024 + 1); // a hole, no real bytes
  CIDPEx tree;
  afx::ClearLoggedMessages();
  EXPECT_EQ(tree.Open(folder.Path("a.idp")), 0);
  EXPECT_FALSE(afx::LoggedMessages().empty());
}

TEST(ParameterFile, ALongTextAndManyKeysComeBack) {
  CIDPEx tree;
  tree.SetValue(std::wstring(1000000, L'长'));
  for (int i = 0; i < 100000; ++i) tree.SetSubValue(L"k" + CString(std::to_wstring(i)), i);
  CIDPEx read;
  ASSERT_TRUE(ReadText(read, TreeText(tree)));
  EXPECT_EQ(TreeText(read), TreeText(tree));
  int value = 0;
  read.GetSubValue(L"k99999", value);
  EXPECT_EQ(value, 99999);
}

TEST(ParameterFile, SaveAfterAFailedOpenWritesAValidFileThatHoldsOnlyWhatWasSet) {
  const TemporaryFolder folder;
  CIDPEx tree;
  tree.SetSubValue(L"before", 1);
  EXPECT_EQ(tree.Open(folder.Path("missing.idp")), 0);
  tree.SetSubValue(L"Version", L"1.0");
  ASSERT_NE(tree.Save(folder.Path("missing.idp")), 0);
  EXPECT_EQ(folder.Read("missing.idp"), "[\"\",{\"Version\":\"1.0\"}]\n");
}

TEST(ParameterFile, ANodeBelowTheRootIsSavedAndOpenedAsARootOfItsOwn) {
  const TemporaryFolder folder;
  CIDPEx tree;
  tree.SetSubValue(L"a", L"v");
  tree.GetSubItem(L"a")->SetSubValue(L"b", 1);
  ASSERT_NE(tree.GetSubItem(L"a")->Save(folder.Path("a.idp")), 0);
  CIDPEx other;
  other.SetSubValue(L"x", 5);
  ASSERT_NE(other.GetSubItem(L"x")->Open(folder.Path("a.idp")), 0);
  EXPECT_EQ(TreeText(other), "[\"\",{\n\"x\":[\"v\",{\"b\":1}]}]\n");
}

TEST(ParameterFile, TwoWritersOfOneFilePassEachOthersSectionsThrough) {
  const TemporaryFolder folder;
  const CString path = folder.Path("PipeMaterial.idp");
  const auto write = [&](const wchar_t* section, int rows) {
    CIDPEx tree;
    tree.Open(path);
    tree.SetSubValue(L"Version", L"1.0");
    tree.SetSubValue(section, L"");
    CIDPEx* node = tree.GetSubItem(section);
    node->ClearDataFromMemory();
    for (int i = 0; i < rows; ++i) node->SetSubValue(CString(std::to_wstring(i)), i);
    return tree.Save(path);
  };
  EXPECT_NE(write(L"管材管径方案", 3), 0);
  EXPECT_NE(write(L"风管管材方案", 2), 0);
  EXPECT_NE(write(L"管材管径方案", 1), 0);
  CIDPEx tree;
  ASSERT_NE(tree.Open(path), 0);
  EXPECT_EQ(tree.SubKeyNames.GetSize(), 3);
  EXPECT_EQ(tree.GetSubItem(L"管材管径方案")->SubKeyNames.GetSize(), 1);
  EXPECT_EQ(tree.GetSubItem(L"风管管材方案")->SubKeyNames.GetSize(), 2);
  EXPECT_FALSE(folder.Has("PipeMaterial.idp.rescued-1"));
}

} // namespace
