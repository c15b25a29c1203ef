// What a dictionary file looks like, and that it gives back whatever was saved.
#include <gmock/gmock.h>

#include "host/afx/MessageLog.h"
#include "plugin/base/VkDtDictionary.h"
#include "tests/plugin/base/DictionaryText.h"
#include "tests/plugin/base/TemporaryFolder.h"

namespace {

using testing::Contains;
using testing::HasSubstr;

std::vector<std::string> Messages() {
  std::vector<std::string> messages;
  for (const CString& message : afx::LoggedMessages()) messages.push_back(message.ToUtf8());
  return messages;
}

// The dictionary saved and read again.
std::string RoundTrip(VkDtDictionary& dictionary) {
  const TemporaryFolder folder;
  EXPECT_TRUE(dictionary.SaveToXML(folder.Path("a.xml")));
  VkDtDictionary again(nullptr, nullptr);
  EXPECT_TRUE(again.ReadFromXML(folder.Path("a.xml"))) << folder.Read("a.xml");
  return DictionaryText(again);
}

TEST(XmlDictionaryFile, HasAnElementForEachItemAndEachAttribute) {
  const TemporaryFolder folder;
  VkDtDictionary root(nullptr, nullptr);
  VkDtDictionary* flow = root.FindOrAddDict(L"3T4TLocalCoe")->FindOrAddDict(L"0");
  flow->SetAttributeValue(L"TID", L"3汇1-3");
  flow->SetAttributeValue(L"XiShu", L"1.5 < \"2\" & 'x'");
  root.FindOrAddDict(L"Block")->SetAttributeDoubleValue(L"Labelx", 20);
  ASSERT_TRUE(root.SaveToXML(folder.Path("a.xml")));
  EXPECT_EQ(folder.Read("a.xml"), R"(<?xml version="1.0" encoding="UTF-8"?>
<dictionary>
  <item name="3T4TLocalCoe">
    <item name="0">
      <attr name="TID" value="3汇1-3" />
      <attr name="XiShu" value="1.5 &lt; &quot;2&quot; &amp; 'x'" />
    </item>
  </item>
  <item name="Block">
    <attr name="Labelx" value="20" />
  </item>
</dictionary>
)");
}

TEST(XmlDictionaryFile, KeepsAnItemsOwnNameApartFromItsAttributeOfThatName) {
  VkDtDictionary root(nullptr, nullptr);
  root.FindOrAddDict(L"Pipe0-3")->SetAttributeIntValue(L"name", 3);
  EXPECT_EQ(RoundTrip(root), "[|]\n [Pipe0-3|] name=3\n");
}

TEST(XmlDictionaryFile, KeepsAnyNameAndAnyText) {
  const std::wstring texts[] = {L"",
                                L" ",
                                L"  two  blanks ",
                                L"3T4T",
                                L"CAD长",
                                L"a\tb\nc\rd\r\ne",
                                L"\\u0041\\",
                                L"</attr>",
                                L"&amp;&#65;",
                                L"\x1\x1F\x7F",
                                L"\xFFFE\xFFFF",
                                L"\xDC80 carried",
                                L"\xD83D\xDE00",
                                L"\x1F600",
                                std::wstring(L"nul\0l", 5),
                                L"\"'<>&",
                                L"]]>",
                                L"\\\x2\\u"};
  VkDtDictionary root(std::wstring(L"根\x3").c_str(), L"remark");
  for (const std::wstring& text : texts) {
    VkDtDictionary* item = root.FindOrAddDict(text);
    for (const std::wstring& value : texts) {
      item->SetAttributeValue(CString(value), CString(value));
      item->FindOrAddDict(value);
    }
  }
  root.SetAttributeValue(L"own", L"the root's");
  EXPECT_EQ(RoundTrip(root), DictionaryText(root));
}

TEST(XmlDictionaryFile, KeepsChildrenOfTheSameNameAndTheirOrder) {
  VkDtDictionary root(nullptr, nullptr);
  for (int i = 0; i < 5; ++i) {
    auto* item = new VkDtDictionary(L"same", L"");
    item->SetAttributeIntValue(L"i", i);
    root.InsertHead(item);
  }
  EXPECT_EQ(RoundTrip(root), DictionaryText(root));
}

TEST(XmlDictionaryFile, LeavesOutNullSlotsAndReadsPlainItemsAsDictionaries) {
  VkDtDictionary root(nullptr, nullptr);
  auto* item = new VkDtDictItem(L"plain", L"说明");
  item->SetAttributeValue(L"a", L"b");
  root.Append(nullptr);
  root.Append(item);
  EXPECT_EQ(RoundTrip(root), "[|]\n [plain|说明] a=b\n");
}

TEST(XmlDictionaryFile, MaySetAttributesAfterItemsAndSpreadBlanksAndQuotesFreely) {
  const TemporaryFolder folder;
  folder.Write("a.xml", "\xEF\xBB\xBF<dictionary>\r\n<item\n name = 'a' ><item name='&#x4E2D;'/>"
                        "<attr value='&lt;v&gt;' name=\"n\"></attr></item></dictionary>\n\n");
  VkDtDictionary root(nullptr, nullptr);
  ASSERT_TRUE(root.ReadFromXML(folder.Path("a.xml")));
  EXPECT_EQ(DictionaryText(root), "[|]\n [a|] n=<v>\n  [中|]\n");
}

TEST(XmlDictionaryFile, ReadingReplacesEverything) {
  const TemporaryFolder folder;
  folder.Write("a.xml", "<dictionary><item name=\"only\"/></dictionary>");
  VkDtDictionary root(L"old", L"old");
  root.SetAttributeValue(L"old", L"old");
  root.FindOrAddDict(L"old");
  ASSERT_TRUE(root.ReadFromXML(folder.Path("a.xml")));
  EXPECT_EQ(DictionaryText(root), "[|]\n [only|]\n");
}

TEST(XmlDictionaryFile, CommentsArePassedOverAndTheFileThatHadThemIsKeptAtTheFirstSave) {
  const TemporaryFolder folder;
  const std::string commented =
      "<!-- by & hand --><dictionary><!-- a --><attr name=\"a\"/><?p i?></dictionary>";
  folder.Write("a.xml", commented);
  VkDtDictionary root(nullptr, nullptr);
  ASSERT_TRUE(root.ReadFromXML(folder.Path("a.xml")));
  EXPECT_EQ(DictionaryText(root), "[|] a=\n");
  ASSERT_TRUE(root.SaveToXML(folder.Path("a.xml")));
  EXPECT_EQ(folder.Read("a.xml.rescued-1"), commented);
  ASSERT_TRUE(root.SaveToXML(folder.Path("a.xml")));
  EXPECT_FALSE(folder.Has("a.xml.rescued-2"));
}

TEST(XmlDictionaryFile, AGoodFileIsReplacedWithoutACopy) {
  const TemporaryFolder folder;
  folder.Write("a.xml", "<dictionary><item name=\"old\"/></dictionary>");
  VkDtDictionary root(nullptr, nullptr);
  EXPECT_TRUE(root.SaveToXML(folder.Path("a.xml")));
  EXPECT_FALSE(folder.Has("a.xml.rescued-1"));
  EXPECT_EQ(folder.Read("a.xml"), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<dictionary />\n");
}

TEST(XmlDictionaryFile, ADamagedOrForeignFileIsCopiedBeforeItIsReplacedAndTheLogNamesTheCopy) {
  for (const std::string old : {"<dictionary><item", "<html><p>text</p></html>", "GBK \xB9\xDC", ""}) {
    const TemporaryFolder folder;
    folder.Write("a.xml", old);
    afx::ClearLoggedMessages();
    VkDtDictionary root(nullptr, nullptr);
    EXPECT_FALSE(root.ReadFromXML(folder.Path("a.xml")));
    EXPECT_TRUE(root.SaveToXML(folder.Path("a.xml")));
    EXPECT_EQ(folder.Read("a.xml.rescued-1"), old);
    EXPECT_THAT(Messages(), Contains(HasSubstr("a.xml.rescued-1")));
    EXPECT_TRUE(root.ReadFromXML(folder.Path("a.xml")));
  }
}

TEST(XmlDictionaryFile, ASaveThatFailsGivesFalseAndKeepsTheOldFile) {
  const TemporaryFolder folder;
  folder.Write("a.xml", "old");
  VkDtDictionary root(nullptr, nullptr);
  EXPECT_FALSE(root.SaveToXML(folder.Path("a.xml") + L"/below/b.xml"));
  EXPECT_FALSE(root.SaveToXML(L""));
  EXPECT_FALSE(root.SaveToXML(nullptr));
  std::filesystem::create_directories(folder.Native("folder.xml"));
  EXPECT_FALSE(root.SaveToXML(folder.Path("folder.xml")));
  EXPECT_EQ(folder.Read("a.xml"), "old");
}

TEST(XmlDictionaryFile, MissingFoldersAreMadeAndNothingIsLeftBesideTheFile) {
  const TemporaryFolder folder;
  VkDtDictionary root(nullptr, nullptr);
  EXPECT_TRUE(root.SaveToXML(folder.Path("Data") + L"\\KTSLDatabase.xml"));
  EXPECT_TRUE(root.SaveToXML(folder.Path("Data") + L"\\KTSLDatabase.xml"));
  const std::filesystem::directory_iterator entries(folder.Native("Data"));
  EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

} // namespace
