// What is no parameter file: refused as a whole, with file, place and reason in the message log.
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

struct Damaged {
  const char* text;
  const char* reason;
};

TEST(ParameterDamage, EveryWrongShapeIsRefusedWithAReason) {
  const Damaged cases[] = {
      {R"(["",{"a":1,"a":1}])", "键重复"},
      {R"(["",{"a":1,"\u0061":2}])", "键重复"},
      {R"(["",{"0":1,"1":2,"0":3}])", "键重复"},
      {R"(["",{"x":["",{"b":1,"b":[2,{"c":1}]}]}])", "键重复"},
      {R"({"a":1})", "根"},
      {R"("text12")", "根"},
      {"1234567", "根"},
      {"[     ]", "根"},
      {R"(["text"])", "根"},
      {R"(["",{},1])", "根"},
      {R"(["",{},{}])", "根"},
      {R"(["","text"])", "根"},
      {R"(["",["",{}]])", "根"},
      {R"([["",{}],{}])", "值只能是"},
      {R"([null,{}])", "值只能是"},
      {R"(["",{"a":true}])", "值只能是"},
      {R"(["",{"a":null}])", "值只能是"},
      {R"(["",{"a":[]}])", "节点"},
      {R"(["",{"a":[1]}])", "节点"},
      {R"(["",{"a":[1,2]}])", "节点"},
      {R"(["",{"a":[1,{},3]}])", "节点"},
      {R"(["",{"a":{}}])", "double"},
      {R"(["",{"a":{"b":1}}])", "double"},
      {R"(["",{"a":{"double":1.5}}])", "double"},
      {R"(["",{"a":{"double":"nan","x":1}}])", "double"},
      {R"(["",{"a":{"double":"NaN"}}])", "nan"},
      {R"(["",{"a":2147483648}])", "超出范围"},
      {R"(["",{"a":-2147483649}])", "超出范围"},
      {R"(["",{"a":18446744073709551615}])", "无效的数字"},
      {R"(["",{"a":99999999999999999999999}])", "无效的数字"},
      {R"(["",{"a":1e999}])", "无效的数字"},
      {R"(["",{"a":01}])", "无效的数字"},
      {R"(["",{"a":1.}])", "无效的数字"},
      {R"(["",{"a":-}])", "无效的数字"},
      {R"(["",{"a":1x}])", "无效的数字"},
      {R"(["",{"a":.5}])", "值"},
      {R"(["",{"a":+5}])", "值"},
      {R"(["",{"a":NaN}])", "值"},
      {R"(["",{"a":1 "b":2}])", "逗号"},
      {R"(["",{"a":1,}])", "逗号"},
      {R"(["",{"a" 1}])", "冒号"},
      {R"(["",{a:1}])", "逗号"},
      {R"(["" {}])", "逗号"},
      {R"(["",{}]])", "还有内容"},
      {R"(["",{}]x])", "还有内容"},
      {R"(["",{}]["",{}])", "还有内容"},
      {R"(["",{"a":"\x"}])", "转义"},
      {R"(["",{"a":"\u12g4"}])", "转义"},
      {R"(["",{"a":"\ud800\u12"}])", "转义"},
      {"[\"\",{\"a\":\"\n\"}]", "控制字符"},
      {"[\"\",{\"a\":\"\xFF\"}]", "UTF-8"},
      {"[\"\",{\"a\":\"\xED\xA0\x80\"}]", "UTF-8"},
      {"[\"\",{\"\xC0\x80\":1}]", "UTF-8"},
      {"[\"\",{\"a\":\"\xD6\xD0\xCE\xC4\"}]", "UTF-8"}, // a file that was saved as GBK
      {R"(["",{"a":"b}])", "没有结束"},
      {"          ", "空"},
  };
  for (const Damaged& damaged : cases) {
    CIDPEx tree;
    tree.SetSubValue(L"before", 1);
    EXPECT_FALSE(ReadText(tree, damaged.text)) << damaged.text;
    EXPECT_EQ(TreeText(tree), "[\"\",{}]\n") << damaged.text;
    EXPECT_THAT(LastMessage(), HasSubstr(damaged.reason)) << damaged.text;
  }
}

TEST(ParameterDamage, ARepeatedKeyIsFoundInALargeNodeToo) {
  std::string text = R"(["",{)";
  for (int i = 0; i < 5000; ++i) text += "\"key" + std::to_string(i) + "\":1,";
  CIDPEx tree;
  EXPECT_TRUE(ReadText(tree, text + "\"key5000\":1}]"));
  EXPECT_FALSE(ReadText(tree, text + "\"key0\":1}]"));
  EXPECT_FALSE(ReadText(tree, text + "\"key4999\":1}]"));
}

TEST(ParameterDamage, OpenNamesFilePlaceAndReason) {
  const TemporaryFolder folder;
  folder.Write("catalogue.idp", "[\"\",{\n\"a\":1,\n\"b\":2,\"a\":3}]\n");
  afx::ClearLoggedMessages();
  CIDPEx tree;
  EXPECT_EQ(tree.Open(folder.Path("catalogue.idp")), 0);
  ASSERT_EQ(afx::LoggedMessages().size(), 1u);
  EXPECT_THAT(LastMessage(), HasSubstr("catalogue.idp"));
  EXPECT_THAT(LastMessage(), HasSubstr("第 3 行"));
  EXPECT_THAT(LastMessage(), HasSubstr("字节 19"));
  EXPECT_THAT(LastMessage(), HasSubstr("键重复"));
}

TEST(ParameterDamage, AMissingFileGives0WithoutAWord) {
  const TemporaryFolder folder;
  afx::ClearLoggedMessages();
  CIDPEx tree;
  tree.SetSubValue(L"before", 1);
  EXPECT_EQ(tree.Open(folder.Path("missing.idp")), 0);
  EXPECT_EQ(tree.Open(folder.Path("missing/missing.idp")), 0);
  EXPECT_EQ(TreeText(tree), "[\"\",{}]\n");
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST(ParameterDamage, AFolderInPlaceOfAFileGives0AndIsTold) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.Native("folder.idp"));
  afx::ClearLoggedMessages();
  CIDPEx tree;
  EXPECT_EQ(tree.Open(folder.Path("folder.idp")), 0);
  EXPECT_FALSE(afx::LoggedMessages().empty());
  EXPECT_EQ(tree.Save(folder.Path("folder.idp")), 0);
  EXPECT_TRUE(std::filesystem::is_directory(folder.Native("folder.idp")));
}

TEST(ParameterDamage, ATextCutOffAtAnyByteIsRefusedAndLeavesAnEmptyUsableTree) {
  CIDPEx sample;
  FillRichSample(sample);
  std::string text = TreeText(sample);
  text.pop_back(); // the last line feed may be missing
  CIDPEx tree;
  ASSERT_TRUE(ReadText(tree, text));
  for (std::size_t size = 0; size < text.size(); ++size) {
    ASSERT_FALSE(ReadText(tree, text.substr(0, size))) << size;
    ASSERT_EQ(tree.SubKeyNames.GetSize(), 0);
    tree.SetSubValue(L"usable", 1);
  }
}

TEST(ParameterDamage, AFileCutOffAtAnyByteOpensAs0) {
  const TemporaryFolder folder;
  const std::string text = "[\"Version:1.0\",{\"管径\":[\"\",{\"0\":[0,{\"DN\":15.5,\"名\":\"\\ud800\"}]}]}]";
  for (std::size_t size = 0; size < text.size(); ++size) {
    folder.Write("a.idp", text.substr(0, size));
    CIDPEx tree;
    ASSERT_EQ(tree.Open(folder.Path("a.idp")), 0) << size;
  }
}

// Whatever a changed byte does, the text is refused with an empty tree or read into a tree that writes and
// reads back as itself.
TEST(ParameterDamage, NoChangedInsertedOrLostByteDoesHarm) {
  const std::string text =
      "[\"V\",{\"管\":[\"\",{\"0\":[0,{\"DN\":-15.5e1,\"n\":{\"double\":\"nan\"}}],\"\\ud83d\":7}]}]";
  const std::string bytes = std::string("\"\\{}[]:,0-.e\x1f\x80\xed\xff u\0", 20);
  const auto check = [](const std::string& mutated) {
    CIDPEx tree;
    if (!ReadText(tree, mutated)) {
      ASSERT_EQ(TreeText(tree), "[\"\",{}]\n");
      return;
    }
    CIDPEx again;
    ASSERT_TRUE(ReadText(again, TreeText(tree))) << mutated;
    ASSERT_EQ(TreeText(again), TreeText(tree)) << mutated;
  };
  for (std::size_t at = 0; at < text.size(); ++at) {
    check(text.substr(0, at) + text.substr(at + 1));
    for (const char byte : bytes) {
      std::string changed = text;
      changed[at] = byte;
      check(changed);
      check(text.substr(0, at) + byte + text.substr(at));
    }
    for (int bit = 0; bit < 8; ++bit) {
      std::string changed = text;
      changed[at] = static_cast<char>(changed[at] ^ (1 << bit));
      check(changed);
    }
  }
}

} // namespace
