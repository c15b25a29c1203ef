#include <clocale>
#include <limits>

#include <gtest/gtest.h>

#include "host/afx/CString.h"

namespace {

template <class... Arguments> CString Text(const wchar_t* format, const Arguments&... arguments) {
  CString text;
  text.Format(format, arguments...);
  return text;
}

TEST(Format, PrintsTextsOfAllKinds) {
  EXPECT_EQ(Text(L"【%s】已经存在", CString(L"钢管")), L"【钢管】已经存在");
  EXPECT_EQ(Text(L"%s%s%s", L"a", std::wstring(L"b"), std::string("水")), L"ab水");
  EXPECT_EQ(Text(L"%S|%ls", "窄", L"宽"), L"窄|宽");
  EXPECT_EQ(Text(L"[%s]", static_cast<const wchar_t*>(nullptr)), L"[]");
}

TEST(Format, PrintsNumbersAsPrintfDoes) {
  EXPECT_EQ(Text(L"%d|%5d|%-5d|%05d|%+d", -3, 42, 42, 42, 42), L"-3|   42|42   |00042|+42");
  EXPECT_EQ(Text(L"%.2f|%8.3f|%g|%e", 2.005, -1.5, 0.1, 12345.678), L"2.00|  -1.500|0.1|1.234568e+04");
  EXPECT_EQ(Text(L"%g|%g|%G", 1e20, 20.0, 1e-10), L"1e+20|20|1E-10");
  EXPECT_EQ(Text(L"%X|%x|%#x|%o|%08X", 255, 255, 255, 8, 0xABCDu), L"FF|ff|0xff|10|0000ABCD");
  EXPECT_EQ(Text(L"%u|%X", -1, -1), L"4294967295|FFFFFFFF");
  EXPECT_EQ(Text(L"%.3d|%6.3d", 5, -5), L"005|  -005");
  EXPECT_EQ(Text(L"%lld|%I64d|%llX", 1LL << 40, 1LL << 40, -1LL),
            L"1099511627776|1099511627776|FFFFFFFFFFFFFFFF");
  EXPECT_EQ(Text(L"%d", std::numeric_limits<unsigned long long>::max()), L"18446744073709551615");
  EXPECT_EQ(Text(L"%d %d", true, 'A'), L"1 65");
  EXPECT_EQ(Text(L"%.1f", 1e300).GetLength(), 303);
  EXPECT_EQ(Text(L"%f %f", std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()),
            L"inf -inf");
}

TEST(Format, PrintsCharacters) {
  EXPECT_EQ(Text(L"%c%c%3c|%-3c|", L'风', 'a', L'b', L'c'), L"风a  b|c  |");
  EXPECT_EQ(Text(L"%c%c", 65, L"xyz"), L"Ax");
}

TEST(Format, CutsAndPadsTexts) {
  EXPECT_EQ(Text(L"[%6s][%-6s][%.2s]", L"水管", L"水管", L"水管道"), L"[    水管][水管    ][水管]");
  EXPECT_EQ(Text(L"[%*s][%-*s][%.*f]", 4, L"a", 3, L"b", 1, 2.25), L"[   a][b  ][2.2]");
  EXPECT_EQ(Text(L"[%*d]", -4, 7), L"[7   ]");
}

TEST(Format, AnArgumentOfAnotherTypeIsConverted) {
  EXPECT_EQ(Text(L"%s", 42), L"42");
  EXPECT_EQ(Text(L"%s|%s", 0.5, -7), L"0.5|-7");
  EXPECT_EQ(Text(L"%d", CString(L" 12abc")), L"12");
  EXPECT_EQ(Text(L"%d", L"管"), L"0");
  EXPECT_EQ(Text(L"%d|%d", 2.9, -2.9), L"2|-2");
  EXPECT_EQ(Text(L"%d|%d", 1e300, std::numeric_limits<double>::quiet_NaN()), L"9223372036854775807|0");
  EXPECT_EQ(Text(L"%.2f|%g", 3, CString(L"2.5m")), L"3.00|2.5");
  EXPECT_EQ(Text(L"%x", L"-1"), L"ffffffff");
  EXPECT_EQ(Text(L"%c", 1.0).GetLength(), 1);
}

TEST(Format, ADirectiveWithoutAnArgumentPrintsNothing) {
  EXPECT_EQ(Text(L"a%sb%dc%8.3fd"), L"abcd");
  EXPECT_EQ(Text(L"%s-%s", L"x"), L"x-");
  EXPECT_EQ(Text(L"[%*d]", 5), L"[]");
  EXPECT_EQ(Text(L"[%*.*f]"), L"[]");
}

TEST(Format, SurplusArgumentsAreIgnored) {
  EXPECT_EQ(Text(L"%d", 1, 2, L"x"), L"1");
}

TEST(Format, TwoPercentSignsAreOne) {
  EXPECT_EQ(Text(L"100%%"), L"100%");
  EXPECT_EQ(Text(L"%%C%d", 5), L"%C5");
  EXPECT_EQ(Text(L"%%%%s"), L"%%s");
}

TEST(Format, APercentSignThatBeginsNoDirectiveStandsForItself) {
  EXPECT_EQ(Text(L"50%"), L"50%");
  EXPECT_EQ(Text(L"效率50%，%s", L"好"), L"效率50%，好");
  EXPECT_EQ(Text(L"%5"), L"%5");
  EXPECT_EQ(Text(L"%-*.q%d", 3), L"%-*.q3");
  EXPECT_EQ(Text(L"%*"), L"%*");
}

TEST(Format, PercentNPrintsAndWritesNothing) {
  int untouched = 7;
  EXPECT_EQ(Text(L"a%nb", static_cast<const void*>(&untouched)), L"ab");
  EXPECT_EQ(untouched, 7);
}

TEST(Format, HugeWidthsAreCut) {
  EXPECT_EQ(Text(L"%999999999999d", 1).GetLength(), 4096);
  EXPECT_EQ(Text(L"%*d", std::numeric_limits<int>::max(), 1).GetLength(), 4096);
  EXPECT_EQ(Text(L"%*d", std::numeric_limits<long long>::min(), 1).GetLength(), 4096);
  EXPECT_LT(Text(L"%.999999999f", 1.5).GetLength(), 5000);
  EXPECT_EQ(Text(L"%.*s", -5, L"abc"), L"abc");
}

TEST(Format, ANullFormatGivesTheEmptyText) {
  EXPECT_EQ(Text(nullptr, 1), L"");
}

TEST(Format, MayUseItsOwnText) {
  CString text(L"a");
  text.Format(L"%s%s", text, text.GetString());
  EXPECT_EQ(text, L"aa");
  text.AppendFormat(L"-%d", 1);
  EXPECT_EQ(text, L"aa-1");
}

TEST(Format, EveryConversionTakesEveryArgument) {
  for (const wchar_t conversion : std::wstring(L"diuoxXcCsSfFeEgGaApn")) {
    for (const wchar_t* options : {L"", L"08", L"-+ #0", L"3.2", L".0", L"#", L"+.40"}) {
      const CString format = CString(L"%") + options + conversion;
      const bool silent = conversion == L'n';
      for (const CString& text :
           {Text(format, 7), Text(format, -7LL), Text(format, 7u), Text(format, 'x'), Text(format, -0.5),
            Text(format, std::numeric_limits<double>::quiet_NaN()), Text(format, L"文"), Text(format, "text"),
            Text(format, static_cast<const void*>(nullptr)),
            Text(format, std::numeric_limits<long long>::min())})
        EXPECT_TRUE(silent ? text.IsEmpty() : text.GetLength() < 100) << format.ToUtf8();
    }
  }
}

} // namespace
