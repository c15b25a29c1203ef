#include <random>

#include <gtest/gtest.h>

#include "host/afx/Encoding.h"

namespace {

TEST(Utf8, EveryCharacterOfUnicodeComesBack) {
  for (wchar_t character = 0; character <= 0x10FFFF; ++character) {
    if (character >= 0xD800 && character <= 0xDFFF) continue;
    const std::wstring text(1, character);
    const std::string utf8 = afx::WideToUtf8(text);
    ASSERT_TRUE(afx::IsUtf8(utf8)) << static_cast<long>(character);
    ASSERT_EQ(afx::Utf8ToWide(utf8), text) << static_cast<long>(character);
  }
}

TEST(Utf8, KnowsItsForms) {
  EXPECT_EQ(afx::WideToUtf8(L"A¢风\U0001F525"), "A\xC2\xA2\xE9\xA3\x8E\xF0\x9F\x94\xA5");
  EXPECT_EQ(afx::Utf8ToWide(std::string_view("a\0b", 3)), std::wstring(L"a\0b", 3));
  EXPECT_EQ(afx::Utf8ToWide(""), L"");
}

TEST(Utf8, ASingleHighByteIsCarriedAsASurrogate) {
  for (int byte = 0; byte <= 0xFF; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    const std::wstring expected(1, static_cast<wchar_t>(byte < 0x80 ? byte : 0xDC00 + byte));
    EXPECT_EQ(afx::Utf8ToWide(bytes), expected);
    EXPECT_EQ(afx::WideToUtf8(expected), bytes);
    EXPECT_EQ(afx::IsUtf8(bytes), byte < 0x80);
  }
}

TEST(Utf8, RefusesWhatIsNotWellFormed) {
  for (const char* bytes :
       {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\x80", "a\xE9\xA3", "\xE9\xA3z"}) {
    EXPECT_FALSE(afx::IsUtf8(bytes));
    EXPECT_EQ(afx::WideToUtf8(afx::Utf8ToWide(bytes)), bytes);
  }
  EXPECT_TRUE(afx::IsUtf8(""));
  EXPECT_TRUE(afx::IsUtf8("风管"));
}

TEST(Utf8, TextAfterABadByteIsStillRead) {
  EXPECT_EQ(afx::Utf8ToWide("\xE9\xA3风"), L"\xDCE9\xDCA3风");
  EXPECT_EQ(afx::Utf8ToWide("\xF0\x9F\x94x"), L"\xDCF0\xDC9F\xDC94x");
}

TEST(Utf8, AHighByteIsSeenWhereverItStands) {
  for (std::size_t at = 0; at < 20; ++at) {
    std::string bytes(20, 'a');
    std::wstring text(20, L'a');
    bytes[at] = '\x80';
    text[at] = 0xDC80;
    EXPECT_EQ(afx::Utf8ToWide(bytes), text);
    EXPECT_EQ(afx::WideToUtf8(text), bytes);
  }
}

TEST(Utf8, EveryTruncationLosesNothing) {
  const std::string text = "供水a\xF0\x9F\x94\xA5¢";
  for (std::size_t length = 0; length <= text.size(); ++length) {
    const std::string cut = text.substr(0, length);
    EXPECT_EQ(afx::WideToUtf8(afx::Utf8ToWide(cut)), cut);
    EXPECT_EQ(afx::WideToUtf8(afx::Utf8ToWide(text.substr(length))), text.substr(length));
  }
}

TEST(Utf8, RandomBytesLoseNothing) {
  std::mt19937 random(1);
  // Bytes that often meet as parts of sequences.
  const std::string pool = "a\x80\xBF\xC2\xE0\xA0\xED\x9F\xEF\xF0\x90\xF4\x8F\xFF";
  for (int round = 0; round < 100000; ++round) {
    std::string bytes;
    for (std::size_t length = random() % 9; length > 0; --length) bytes += pool[random() % pool.size()];
    const std::wstring text = afx::Utf8ToWide(bytes);
    ASSERT_EQ(afx::WideToUtf8(text), bytes);
    ASSERT_EQ(afx::IsUtf8(bytes),
              text.find_first_of(L"\xDC80\xDCBF\xDCC2\xDCE0\xDCA0\xDCED\xDC9F\xDCEF"
                                 L"\xDCF0\xDC90\xDCF4\xDC8F\xDCFF") == std::wstring::npos);
  }
}

TEST(Utf8, APairOfSurrogatesIsOneCharacter) {
  EXPECT_EQ(afx::WideToUtf8(L"\xD83D\xDD25"), "\xF0\x9F\x94\xA5");
}

TEST(Utf8, WhatIsNoCharacterBecomesTheReplacement) {
  EXPECT_EQ(afx::WideToUtf8(L"\xD800"), "\xEF\xBF\xBD");
  EXPECT_EQ(afx::WideToUtf8(L"\xD800z"), "\xEF\xBF\xBDz");
  EXPECT_EQ(afx::WideToUtf8(L"\xDC7F\xDD00"), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(afx::WideToUtf8(std::wstring(1, static_cast<wchar_t>(0x110000))), "\xEF\xBF\xBD");
  EXPECT_EQ(afx::WideToUtf8(std::wstring(1, static_cast<wchar_t>(-1))), "\xEF\xBF\xBD");
}

} // namespace
