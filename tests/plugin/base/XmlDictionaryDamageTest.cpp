// Files that are damaged or beyond bounds: false, an empty dictionary that can be used, and a line in the log
// with file, position and reason.
#include <gmock/gmock.h>

#include "host/afx/MessageLog.h"
#include "plugin/base/VkDtDictionary.h"
#include "plugin/base/xml/Reader.h"
#include "plugin/base/xml/Writer.h"
#include "tests/plugin/base/DictionaryText.h"
#include "tests/plugin/base/TemporaryFolder.h"

namespace {

using testing::HasSubstr;

const std::string kEmpty = "[|]\n";

// The last message after reading the text, which must be refused.
std::string Refusal(const std::string& text) {
  const TemporaryFolder folder;
  folder.Write("damaged.xml", text);
  afx::ClearLoggedMessages();
  VkDtDictionary root(L"old", nullptr);
  root.FindOrAddDict(L"old")->SetAttributeValue(L"a", L"b");
  root.SetAttributeValue(L"a", L"b");
  EXPECT_FALSE(root.ReadFromXML(folder.Path("damaged.xml"))) << text.substr(0, 200);
  EXPECT_EQ(DictionaryText(root), kEmpty);
  EXPECT_NE(root.FindOrAddDict(L"usable"), nullptr);
  EXPECT_EQ(afx::LoggedMessages().size(), 1u);
  return afx::LoggedMessages().empty() ? "" : afx::LoggedMessages().back().ToUtf8();
}

std::string Around(const std::string& content) {
  return "<dictionary>\n" + content + "</dictionary>\n";
}

TEST(XmlDictionaryDamage, TheLogNamesFilePositionAndReason) {
  const std::string message = Refusal("<dictionary>\n<item name=\"a\">\n<other/></item></dictionary>");
  EXPECT_THAT(message, HasSubstr("damaged.xml"));
  EXPECT_THAT(message, HasSubstr("第 3 行（字节 30）"));
  EXPECT_THAT(message, HasSubstr("未知的元素"));
}

TEST(XmlDictionaryDamage, AMissingFileAndAFolderAreToldToo) {
  const TemporaryFolder folder;
  VkDtDictionary root(nullptr, nullptr);
  for (const CString& path : {folder.Path("missing.xml"), folder.Path(""), CString()}) {
    afx::ClearLoggedMessages();
    root.FindOrAddDict(L"old");
    EXPECT_FALSE(root.ReadFromXML(path));
    EXPECT_TRUE(root.IsEmpty());
    EXPECT_EQ(afx::LoggedMessages().size(), 1u);
  }
  EXPECT_FALSE(root.ReadFromXML(nullptr));
}

TEST(XmlDictionaryDamage, WhatIsNoPartOfTheVocabularyIsRefused) {
  EXPECT_THAT(Refusal(""), HasSubstr("没有根元素"));
  EXPECT_THAT(Refusal("<items/>"), HasSubstr("根元素不是 dictionary"));
  EXPECT_THAT(Refusal("<dictionary/><dictionary/>"), HasSubstr("不止一个根元素"));
  EXPECT_THAT(Refusal("<dictionary/>text"), HasSubstr("元素之外有文本"));
  EXPECT_THAT(Refusal("text<dictionary/>"), HasSubstr("元素之外有文本"));
  EXPECT_THAT(Refusal(Around("text")), HasSubstr("元素之外有文本"));
  EXPECT_THAT(Refusal(Around("<![CDATA[text]]>")), HasSubstr("元素之外有文本"));
  EXPECT_THAT(Refusal(Around("<attr name='a'>text</attr>")), HasSubstr("元素之外有文本"));
  EXPECT_THAT(Refusal(Around("<attr name='a'><item/></attr>")), HasSubstr("attr 中不能有元素"));
  EXPECT_THAT(Refusal(Around("<attr name='a' unit='mm'/>")), HasSubstr("未知或重复的属性"));
  EXPECT_THAT(Refusal(Around("<item name='a' name='b'/>")), HasSubstr("未知或重复的属性"));
  EXPECT_THAT(Refusal(Around("<item name='a' name-escaped='b'/>")), HasSubstr("属性重复"));
  EXPECT_THAT(Refusal(Around("<attr name='a'/><attr name='a'/>")), HasSubstr("属性重复"));
  EXPECT_THAT(Refusal(Around("<item name-escaped='\\n'/>")), HasSubstr("无效的转义"));
  EXPECT_THAT(Refusal(Around("<item name-escaped='\\u12'/>")), HasSubstr("无效的转义"));
  EXPECT_THAT(Refusal(Around("<item name-escaped='\\u12 4'/>")), HasSubstr("无效的转义"));
  EXPECT_THAT(Refusal(Around("<item name-escaped='a\\'/>")), HasSubstr("无效的转义"));
  EXPECT_THAT(Refusal("<dictionary/><?xml version='1.0'?>"), HasSubstr("XML 声明不在开头"));
}

TEST(XmlDictionaryDamage, ATextThatIsNotUtf8IsRefusedAtItsFirstBadByte) {
  EXPECT_THAT(Refusal(Around("<item name='\xB9\xDC'/>")),
              testing::AllOf(HasSubstr("不是 UTF-8"), HasSubstr("字节 25")));
  EXPECT_THAT(Refusal("\xFF\xFE<\0d\0"), HasSubstr("不是 UTF-8"));
  EXPECT_THAT(Refusal("<?xml version='1.0' encoding='GBK'?><dictionary/>"), HasSubstr("编码声明不是 UTF-8"));
  EXPECT_THAT(Refusal(Around("<item name='a\x01'/>")), HasSubstr("控制字符"));
  EXPECT_THAT(Refusal(Around(std::string("<item name='a\0b'/>", 18))), HasSubstr("控制字符"));
  EXPECT_THAT(Refusal(Around(std::string("<!-- a\0b -->", 12))), HasSubstr("控制字符"));
}

TEST(XmlDictionaryDamage, ReferencesThatXmlDoesNotKnowAreRefused) {
  for (const char* reference : {"&lol;", "&", "&amp", "&;", "&#;", "&#x;", "&#0;", "&#1;", "&#xD800;",
                                "&#xFFFE;", "&#1114112;", "&#99999999999999999999;", "&#-5;", "&# 5;"})
    EXPECT_THAT(Refusal(Around(std::string("<item name='") + reference + "'/>")), HasSubstr("实体引用"))
        << reference;
  EXPECT_THAT(Refusal(Around("<item name='a<b'/>")), HasSubstr("标记中有 <"));
}

TEST(XmlDictionaryDamage, EntityBombsAreRefusedUnexpanded) {
  std::string bomb = "<?xml version='1.0'?>\n<!DOCTYPE lolz [\n<!ENTITY a0 'lol'>\n";
  for (int i = 1; i < 30; ++i) {
    const std::string below = std::string("&a").append(std::to_string(i - 1)) + ";";
    bomb += std::string("<!ENTITY a").append(std::to_string(i)) + " '" + below + below + below + "'>\n";
  }
  EXPECT_THAT(Refusal(bomb + "]>\n<dictionary><item name='&a29;'/></dictionary>"), HasSubstr("DOCTYPE"));
  EXPECT_THAT(Refusal("<!DOCTYPE d SYSTEM 'file:///etc/hostname'><dictionary/>"), HasSubstr("DOCTYPE"));
}

TEST(XmlDictionaryDamage, TooDeepIsRefusedInBothDirections) {
  const auto nested = [](int depth) {
    std::string text;
    for (int i = 1; i < depth; ++i) text += "<item>";
    for (int i = 1; i < depth; ++i) text += "</item>";
    return "<dictionary>" + text + "</dictionary>";
  };
  EXPECT_THAT(Refusal(nested(257)), HasSubstr("嵌套超过 256 层"));
  EXPECT_THAT(Refusal(nested(200'000)), HasSubstr("嵌套超过 256 层"));
  const TemporaryFolder folder;
  folder.Write("a.xml", nested(256));
  VkDtDictionary root(nullptr, nullptr);
  ASSERT_TRUE(root.ReadFromXML(folder.Path("a.xml")));
  EXPECT_TRUE(root.SaveToXML(folder.Path("a.xml")));
  EXPECT_TRUE(root.ReadFromXML(folder.Path("a.xml")));
  VkDtDictionary* deepest = &root;
  while (!deepest->IsEmpty()) deepest = static_cast<VkDtDictionary*>(*deepest->GetFirst());
  deepest->FindOrAddDict(L"one more");
  const std::string before = folder.Read("a.xml");
  EXPECT_FALSE(root.SaveToXML(folder.Path("a.xml")));
  EXPECT_EQ(folder.Read("a.xml"), before);
}

TEST(XmlDictionaryDamage, TooLongAndTooManyElementsAreRefusedBeforeTheyCostMemory) {
  EXPECT_NE(Refusal(Around(std::string(64 << 20, ' '))), "");
  std::string many;
  for (int i = 0; i < 2'000'000; ++i) many += "<item/>";
  EXPECT_THAT(Refusal(Around(many)), HasSubstr("元素超过 200 万个"));
}

TEST(XmlDictionaryDamage, WhatWouldBeTooLongIsNotSaved) {
  const TemporaryFolder folder;
  VkDtDictionary root(nullptr, nullptr);
  const CString mebibyte(L'm', 1 << 20);
  for (int i = 0; i < 64; ++i) root.SetAttributeValue(std::to_wstring(i).c_str(), mebibyte);
  EXPECT_FALSE(root.SaveToXML(folder.Path("a.xml")));
  EXPECT_FALSE(folder.Has("a.xml"));
}

const std::string kSample = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!--c--><dictionary "
                            "remark=\"\"><attr name=\"a\" value=\"&#10;&lt;\"/>"
                            "<item name=\"管\"><item name-escaped=\"\\u0001\"/><attr name='3T4T' "
                            "value-escaped='\\\\'/></item></dictionary>";

TEST(XmlDictionaryDamage, AFileCutOffAtAnyByteGivesFalse) {
  const TemporaryFolder folder;
  VkDtDictionary root(nullptr, nullptr);
  folder.Write("a.xml", kSample);
  ASSERT_TRUE(root.ReadFromXML(folder.Path("a.xml")));
  for (std::size_t size = 0; size < kSample.size(); ++size) {
    folder.Write("a.xml", kSample.substr(0, size));
    ASSERT_FALSE(root.ReadFromXML(folder.Path("a.xml"))) << size;
    ASSERT_EQ(DictionaryText(root), kEmpty) << size;
    root.FindOrAddDict(L"usable");
  }
}

// Whatever a changed byte does, the text is refused with an empty dictionary or read into one that writes and
// reads back as itself.
TEST(XmlDictionaryDamage, NoChangedInsertedOrLostByteDoesHarm) {
  const auto check = [](const std::string& mutated) {
    VkDtDictionary root(nullptr, nullptr);
    idp::Fault fault;
    bool dropped = false;
    if (!xml::ReadDictionary(root, mutated, fault, dropped)) {
      ASSERT_EQ(DictionaryText(root), kEmpty);
      ASSERT_FALSE(fault.reason.IsEmpty()) << mutated;
      ASSERT_LE(fault.offset, mutated.size());
      return;
    }
    const std::string before = DictionaryText(root);
    std::string written;
    CString reason;
    ASSERT_TRUE(xml::WriteDictionary(root, written, reason));
    ASSERT_TRUE(xml::ReadDictionary(root, written, fault, dropped)) << mutated;
    ASSERT_EQ(DictionaryText(root), before) << mutated;
  };
  const std::string bytes = std::string("<>/&;\"'=\\ !-?[\x1f\x80\xed u\0", 21);
  for (std::size_t at = 0; at < kSample.size(); ++at) {
    check(kSample.substr(0, at) + kSample.substr(at + 1));
    for (const char byte : bytes) {
      std::string changed = kSample;
      changed[at] = byte;
      check(changed);
      check(kSample.substr(0, at) + byte + kSample.substr(at));
    }
    for (int bit = 0; bit < 8; ++bit) {
      std::string changed = kSample;
      changed[at] = static_cast<char>(changed[at] ^ (1 << bit));
      check(changed);
    }
  }
}

} // namespace
