#include "host/afx/CodePage.h"

#include <cstdio>
#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

using afx::CodePage;

const CodePage& Page(const char* name) {
  const CodePage* page = CodePage::Find(name);
  if (!page) throw std::runtime_error(name);
  return *page;
}

constexpr const char* kNames[] = {
    "ANSI_874",  "ANSI_932",  "ANSI_936",  "ANSI_949",  "ANSI_950",  "ANSI_1250", "ANSI_1251", "ANSI_1252",
    "ANSI_1253", "ANSI_1254", "ANSI_1255", "ANSI_1256", "ANSI_1257", "ANSI_1258", "ANSI_1361", "DOS437",
    "DOS850",    "DOS852",    "DOS855",    "DOS857",    "DOS860",    "DOS861",    "DOS863",    "DOS864",
    "DOS865",    "DOS866",    "DOS869",    "DOS932",    "ISO8859-1", "ISO8859-2", "ISO8859-3", "ISO8859-4",
    "ISO8859-5", "ISO8859-6", "ISO8859-7", "ISO8859-8", "ISO8859-9", "MACINTOSH", "UTF-8",     "GB2312",
    "BIG5",      "KSC5601",   "JOHAB",     "US_ASCII"};

TEST(CodePage, EveryNameThatDrawingsCarryIsFound) {
  for (const char* name : kNames) EXPECT_NE(CodePage::Find(name), nullptr) << name;
}

TEST(CodePage, NamesAreFoundInAnyCaseAndPunctuation) {
  EXPECT_EQ(CodePage::Find("ansi_936"), CodePage::Find("ANSI_936"));
  EXPECT_EQ(CodePage::Find("Ansi936"), CodePage::Find("ANSI_936"));
  EXPECT_EQ(CodePage::Find("gbk"), CodePage::Find("ANSI_936"));
  EXPECT_EQ(CodePage::Find("dos850"), CodePage::Find("DOS850"));
  EXPECT_EQ(CodePage::Find("ISO-8859-1"), CodePage::Find("iso8859-1"));
  EXPECT_EQ(CodePage::Find("utf8"), CodePage::Find("UTF-8"));
  EXPECT_STREQ(CodePage::Find("ansi_936")->Name(), "ANSI_936");
}

TEST(CodePage, AnUnknownNameGivesNull) {
  for (const char* name : {"", "ANSI_", "ANSI_9999", "936", "风", "ANSI_936\n", "_", "../etc"})
    EXPECT_EQ(CodePage::Find(name), nullptr) << name;
}

TEST(CodePage, GbkTextIsReadAndWritten) {
  const CodePage& gbk = Page("ANSI_936");
  EXPECT_EQ(gbk.Decode("\xB9\xA9\xCB\xAE"
                       "DN20"),
            L"供水DN20");
  EXPECT_EQ(gbk.Encode(L"供水DN20"), "\xB9\xA9\xCB\xAE"
                                     "DN20");
  EXPECT_EQ(gbk.Decode("\x80"), L"€");
  EXPECT_EQ(gbk.Encode(L"€"), "\x80");
  EXPECT_EQ(gbk.Decode("\xA1\xA4\xA1\xAA\xA2\xA1"), L"·—ⅰ");
  // The trail byte of this character is a backslash.
  EXPECT_EQ(gbk.Decode("\x81\x5C"), L"乗");
  EXPECT_EQ(gbk.Encode(L"乗"), "\x81\x5C");
}

TEST(CodePage, TheUserDefinedAreaOfGbkIsReadAsPrivateCharacters) {
  const CodePage& gbk = Page("ANSI_936");
  EXPECT_EQ(gbk.Decode("\xAA\xA1"), L"\xE000");
  EXPECT_EQ(gbk.Encode(L"\xE000"), "\xAA\xA1");
}

TEST(CodePage, OtherPagesOfTheEastAreRead) {
  EXPECT_EQ(Page("ANSI_932").Decode("\x94\x5C\xB1"), L"能ｱ");
  EXPECT_EQ(Page("ANSI_949").Decode("\xB9\xE8\xB0\xFC"), L"배관");
  EXPECT_EQ(Page("ANSI_950").Decode("\xA8\xD1\xA4\xF4"), L"供水");
  EXPECT_EQ(Page("ANSI_1361").Encode(L"\\P"), "\\P");
}

TEST(CodePage, PagesOfTheWestAreRead) {
  EXPECT_EQ(Page("ANSI_1252").Decode("\x80\xE9\xF8"), L"€éø");
  EXPECT_EQ(Page("ANSI_1251").Decode("\xD2\xF0\xF3\xE1\xE0"), L"Труба");
  EXPECT_EQ(Page("DOS850").Decode("\xF8\x9D"), L"°Ø");
  EXPECT_EQ(Page("DOS437").Decode("\xED\xF8"), L"φ°");
  EXPECT_EQ(Page("ISO8859-2").Encode(L"ž"), "\xBE");
  // Letter and mark stay two characters, as they are two bytes.
  EXPECT_EQ(Page("ANSI_1258").Decode("\xEA\xEC"), L"ê\u0301");
  EXPECT_EQ(Page("ANSI_1258").Encode(L"ê\u0301"), "\xEA\xEC");
}

TEST(CodePage, AsciiIsItselfInEveryPage) {
  std::string ascii;
  for (int byte = 0; byte < 0x80; ++byte) ascii += static_cast<char>(byte);
  const std::wstring wide(ascii.begin(), ascii.end());
  for (const char* name : kNames) {
    EXPECT_EQ(Page(name).Decode(ascii), wide) << name;
    EXPECT_EQ(Page(name).Encode(wide), ascii) << name;
  }
}

TEST(CodePage, EverySingleByteComesBack) {
  for (const char* name : kNames)
    for (int byte = 0; byte <= 0xFF; ++byte) {
      const std::string bytes(1, static_cast<char>(byte));
      const std::wstring text = Page(name).Decode(bytes);
      EXPECT_EQ(text.size(), 1u);
      EXPECT_EQ(Page(name).Encode(text), bytes) << name << " " << byte;
    }
}

// How many of all pairs of bytes do not come back as the same bytes. They must come back as the same text.
int ChangedPairs(const CodePage& page) {
  int changed = 0;
  for (int pair = 0; pair <= 0xFFFF; ++pair) {
    const std::string bytes{static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)};
    const std::wstring text = page.Decode(bytes);
    const std::string again = page.Encode(text);
    if (again == bytes) continue;
    ++changed;
    EXPECT_EQ(page.Decode(again), text) << page.Name() << " " << pair;
  }
  return changed;
}

TEST(CodePage, EveryPairOfBytesComesBack) {
  const std::set<std::string> ambiguous = {"ANSI_932", "ANSI_950"};
  for (const char* name : kNames) {
    const CodePage& page = Page(name);
    if (ambiguous.contains(page.Name())) continue;
    EXPECT_EQ(ChangedPairs(page), 0) << name;
  }
}

// Vendors' additions repeat characters that these pages have already; the page's preferred code is written.
TEST(CodePage, OneOfTwoCodesForTheSameCharacterIsWrittenAsTheOther) {
  EXPECT_EQ(Page("ANSI_932").Decode("\xFA\x54"), L"￢");
  EXPECT_EQ(Page("ANSI_932").Encode(L"￢"), "\x81\xCA");
  EXPECT_LE(ChangedPairs(Page("ANSI_932")), 400);
  EXPECT_LE(ChangedPairs(Page("ANSI_950")), 16);
}

TEST(CodePage, AnUndefinedByteIsCarriedAsASurrogate) {
  EXPECT_EQ(Page("ANSI_1252").Decode("a\x81z"), L"a\xDC81z");
  EXPECT_EQ(Page("ANSI_1252").Encode(L"a\xDC81z"), "a\x81z");
  EXPECT_EQ(Page("ANSI_936").Decode("\xFF"), L"\xDCFF");
  EXPECT_EQ(Page("US_ASCII").Decode("\xE9"), L"\xDCE9");
}

TEST(CodePage, APairThatIsCutOffIsCarried) {
  const CodePage& gbk = Page("ANSI_936");
  EXPECT_EQ(gbk.Decode("\xB9\xA9\xCB"), L"供\xDCCB");
  EXPECT_EQ(gbk.Encode(L"供\xDCCB"), "\xB9\xA9\xCB");
  EXPECT_EQ(gbk.Decode("\xCB"
                       "1"),
            L"\xDCCB"
            L"1");
}

TEST(CodePage, ACharacterThatThePageLacksGoesToTheHandler) {
  std::vector<wchar_t> seen;
  const auto handler = [&seen](wchar_t character, std::string& out) {
    seen.push_back(character);
    char code[16];
    std::snprintf(code, sizeof code, "\\U+%04X", static_cast<unsigned>(character));
    out += code;
  };
  EXPECT_EQ(Page("ANSI_1252").Encode(L"é风z", handler), "\xE9\\U+98CEz");
  EXPECT_EQ(Page("ANSI_936").Encode(L"\U0001F525\xD800", handler), "\\U+1F525\\U+D800");
  EXPECT_EQ(seen, (std::vector<wchar_t>{L'风', 0x1F525, 0xD800}));
  EXPECT_EQ(Page("ANSI_1252").Encode(L"风"), "?");
  EXPECT_EQ(Page("ANSI_1252").Encode(std::wstring(1, static_cast<wchar_t>(-5))), "?");
}

TEST(CodePage, FourByteFormsAreNeverWritten) {
  // Readers of such drawings know characters of two bytes at most.
  EXPECT_EQ(Page("ANSI_936").Encode(L"\u0E01"), "?");
}

TEST(CodePage, TheUtf8PageLosesNothingEither) {
  const CodePage& utf8 = Page("UTF-8");
  EXPECT_EQ(utf8.Decode("风\xE9"), L"风\xDCE9");
  EXPECT_EQ(utf8.Encode(L"风\xDCE9"), "风\xE9");
}

TEST(CodePage, SeveralThreadsMayAskForTheSamePage) {
  std::vector<std::thread> threads;
  std::vector<std::wstring> texts(8);
  for (std::wstring& text : texts)
    threads.emplace_back([&text] { text = Page("DOS775").Decode("\x80") + Page("DOS862").Decode("\x80"); });
  for (std::thread& thread : threads) thread.join();
  for (const std::wstring& text : texts) EXPECT_EQ(text, L"Ćא");
}

} // namespace
