#include "host/afx/CString.h"

#include <unordered_set>

#include <gtest/gtest.h>

#include "host/afx/CInvalidArgException.h"

namespace {

TEST(CString, NullPointerIsTheEmptyText) {
  EXPECT_TRUE(CString(static_cast<const wchar_t*>(nullptr)).IsEmpty());
  CString text(L"a");
  text += static_cast<const wchar_t*>(nullptr);
  EXPECT_EQ(text, L"a");
  EXPECT_TRUE(CString() == static_cast<const wchar_t*>(nullptr));
}

TEST(CString, RepeatsACharacter) {
  EXPECT_EQ(CString(L'风', 3), L"风风风");
  EXPECT_EQ(CString(L'x', 0), L"");
  EXPECT_EQ(CString(L'x', -1), L"");
}

TEST(CString, TakesTheGivenLengthEvenOverANull) {
  EXPECT_EQ(CString(L"a\0b", 3).GetLength(), 3);
  EXPECT_THROW(CString(L"a", -1), CInvalidArgException);
}

TEST(CString, IndexReachesTheClosingNullButNotBeyond) {
  const CString text(L"管道");
  EXPECT_EQ(text[0], L'管');
  EXPECT_EQ(text.GetAt(1), L'道');
  EXPECT_EQ(text[2], L'\0');
  EXPECT_THROW(text.GetAt(3), CInvalidArgException);
  EXPECT_THROW(text[-1], CInvalidArgException);
  EXPECT_THROW(text[std::size_t{1} << 32], CInvalidArgException);
  EXPECT_EQ(text[std::size_t{1}], L'道');
}

TEST(CString, SetAtReplacesOneCharacterAndRefusesTheEnd) {
  CString text(L"DN20");
  text.SetAt(2, L'5');
  EXPECT_EQ(text, L"DN50");
  EXPECT_THROW(text.SetAt(4, L'x'), CInvalidArgException);
  EXPECT_THROW(text.SetAt(-1, L'x'), CInvalidArgException);
}

TEST(CString, JoinsTextsAndCharacters) {
  const CString a(L"DN");
  EXPECT_EQ(a + CString(L"20"), L"DN20");
  EXPECT_EQ(a + L"20", L"DN20");
  EXPECT_EQ(L"≥" + a, L"≥DN");
  EXPECT_EQ(a + L'1', L"DN1");
  EXPECT_EQ(L'<' + a, L"<DN");
  CString self(L"ab");
  self += self;
  self += L'!';
  EXPECT_EQ(self, L"abab!");
  self += self.GetString() + 3;
  EXPECT_EQ(self, L"abab!b!");
}

TEST(CString, ComparesByCodePoints) {
  EXPECT_TRUE(CString(L"a") < CString(L"b"));
  EXPECT_TRUE(CString(L"a") < L"aa");
  EXPECT_TRUE(CString(L"B") != L"b");
  EXPECT_TRUE(L"b" == CString(L"b"));
  EXPECT_TRUE(CString(L"风") > L"z");
  EXPECT_LT(CString(L"a").Compare(L"b"), 0);
  EXPECT_EQ(CString(L"a").Compare(L"a"), 0);
}

TEST(CString, CompareNoCaseKnowsLettersOfAllScripts) {
  EXPECT_EQ(CString(L"Layer0").CompareNoCase(L"LAYER0"), 0);
  EXPECT_EQ(CString(L"ÄÖ").CompareNoCase(L"äö"), 0);
  EXPECT_EQ(CString(L"ТРУБА").CompareNoCase(L"труба"), 0);
  EXPECT_EQ(CString(L"ＤＮ").CompareNoCase(L"ｄｎ"), 0);
  EXPECT_LT(CString(L"a").CompareNoCase(L"B"), 0);
  EXPECT_GT(CString(L"ab").CompareNoCase(L"A"), 0);
  EXPECT_NE(CString(L"供水").CompareNoCase(L"回水"), 0);
}

TEST(CString, PartsAreCutToWhatIsThere) {
  const CString text(L"供水管道");
  EXPECT_EQ(text.Left(2), L"供水");
  EXPECT_EQ(text.Left(9), text);
  EXPECT_EQ(text.Left(-1), L"");
  EXPECT_EQ(text.Right(2), L"管道");
  EXPECT_EQ(text.Right(9), text);
  EXPECT_EQ(text.Right(-1), L"");
  EXPECT_EQ(text.Mid(1), L"水管道");
  EXPECT_EQ(text.Mid(1, 2), L"水管");
  EXPECT_EQ(text.Mid(4), L"");
  EXPECT_EQ(text.Mid(7, 2), L"");
  EXPECT_EQ(text.Mid(-3, 1), L"供");
  EXPECT_EQ(text.Mid(1, 2147483647), L"水管道");
}

TEST(CString, FindsTextsAndCharacters) {
  const CString text(L"a|b|c");
  EXPECT_EQ(text.Find(L"|"), 1);
  EXPECT_EQ(text.Find(L'|', 2), 3);
  EXPECT_EQ(text.Find(L"x"), -1);
  EXPECT_EQ(text.Find(L"a", 9), -1);
  EXPECT_EQ(text.Find(L"a", -1), -1);
  EXPECT_EQ(text.ReverseFind(L'|'), 3);
  EXPECT_EQ(text.ReverseFind(L'x'), -1);
  EXPECT_EQ(text.FindOneOf(L"cb"), 2);
  EXPECT_EQ(text.FindOneOf(L""), -1);
}

TEST(CString, TrimsBlanksAndGivenCharacters) {
  EXPECT_EQ(CString(L" \t\r\n阀门 \n").Trim(), L"阀门");
  EXPECT_EQ(CString(L"  a ").TrimLeft(), L"a ");
  EXPECT_EQ(CString(L"  a ").TrimRight(), L"  a");
  EXPECT_EQ(CString(L" \t ").Trim(), L"");
  EXPECT_EQ(CString(L"\u3000a").Trim(), L"\u3000a");
  EXPECT_EQ(CString(L"0.500").TrimRight(L'0'), L"0.5");
  EXPECT_EQ(CString(L"--a-").TrimLeft(L'-'), L"a-");
  EXPECT_EQ(CString(L"(a)").Trim(L"()"), L"a");
  EXPECT_EQ(CString(L"xx").Trim(L'x'), L"");
}

TEST(CString, ChangesCase) {
  EXPECT_EQ(CString(L"dn20管ä").MakeUpper(), L"DN20管Ä");
  EXPECT_EQ(CString(L"DN20管Ä").MakeLower(), L"dn20管ä");
  EXPECT_EQ(CString(L"ab管").MakeReverse(), L"管ba");
}

TEST(CString, ReplacesWithoutLookingAtWhatItPutIn) {
  CString text(L"aaa");
  EXPECT_EQ(text.Replace(L"a", L"aa"), 3);
  EXPECT_EQ(text, L"aaaaaa");
  EXPECT_EQ(text.Replace(L"", L"x"), 0);
  EXPECT_EQ(text.Replace(L"aa", nullptr), 3);
  EXPECT_TRUE(text.IsEmpty());
  CString path(L"a\\b\\c");
  EXPECT_EQ(path.Replace(L'\\', L'/'), 2);
  EXPECT_EQ(path, L"a/b/c");
}

TEST(CString, InsertsRemovesAndDeletes) {
  CString text(L"abc");
  EXPECT_EQ(text.Insert(1, L"XY"), 5);
  EXPECT_EQ(text, L"aXYbc");
  EXPECT_EQ(text.Insert(99, L'!'), 6);
  EXPECT_EQ(text.Insert(-1, L'<'), 7);
  EXPECT_EQ(text, L"<aXYbc!");
  EXPECT_EQ(text.Delete(2, 2), 5);
  EXPECT_EQ(text, L"<abc!");
  EXPECT_EQ(text.Delete(4, 99), 4);
  EXPECT_EQ(text.Delete(99), 4);
  EXPECT_EQ(text.Remove(L'a'), 1);
  EXPECT_EQ(text, L"<bc");
  text.Insert(0, text.GetString());
  EXPECT_EQ(text, L"<bc<bc");
}

TEST(CString, TokenizeSkipsEmptyPiecesAndEndsAtMinusOne) {
  const CString text(L",,a,b;;c,");
  int start = 0;
  EXPECT_EQ(text.Tokenize(L",;", start), L"a");
  EXPECT_EQ(text.Tokenize(L",;", start), L"b");
  EXPECT_EQ(text.Tokenize(L",;", start), L"c");
  EXPECT_EQ(text.Tokenize(L",;", start), L"");
  EXPECT_EQ(start, -1);
  EXPECT_THROW(text.Tokenize(L",", start), CInvalidArgException);
  start = 0;
  EXPECT_EQ(CString().Tokenize(L",", start), L"");
  EXPECT_EQ(start, -1);
  start = 0;
  EXPECT_EQ(CString(L"last").Tokenize(L",", start), L"last");
  EXPECT_EQ(start, 4);
}

TEST(CString, SpansStopAtTheFirstStranger) {
  EXPECT_EQ(CString(L"123abc").SpanIncluding(L"0123456789"), L"123");
  EXPECT_EQ(CString(L"abc").SpanIncluding(L"0"), L"");
  EXPECT_EQ(CString(L"name|maker").SpanExcluding(L"|"), L"name");
  EXPECT_EQ(CString(L"name").SpanExcluding(L"|"), L"name");
}

TEST(CString, GoesToUtf8AndBack) {
  const CString text = CString::FromUtf8("散热器 \xF0\x9F\x94\xA5");
  EXPECT_EQ(text, L"散热器 \U0001F525");
  EXPECT_EQ(text.GetLength(), 5);
  EXPECT_EQ(text.ToUtf8(), "散热器 \xF0\x9F\x94\xA5");
}

TEST(CString, IsAKeyOfHashedContainers) {
  std::unordered_set<CString> names{L"风管", L"水管", L"风管"};
  EXPECT_EQ(names.size(), 2u);
  EXPECT_TRUE(names.contains(L"水管"));
}

TEST(CString, KeepsItsTextWhenAssignedFromItself) {
  CString text(L"abc");
  const CString& same = text;
  text = same;
  EXPECT_EQ(text, L"abc");
  text = text.GetString();
  EXPECT_EQ(text, L"abc");
}

} // namespace
