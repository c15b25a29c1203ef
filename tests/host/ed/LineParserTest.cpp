#include "host/ed/EdLineParser.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ed;

TEST(LineParser, ReadsPointsInEveryForm) {
  const AcGePoint3d last(10, 20, 5);
  EXPECT_EQ(AcGePoint3d(1, 2, 0), *ParsePoint(L"1,2", last));
  EXPECT_EQ(AcGePoint3d(1.5, -2, 3), *ParsePoint(L" 1.5 , -2 , 3 ", last));
  EXPECT_EQ(AcGePoint3d(11, 18, 5), *ParsePoint(L"@1,-2", last));
  EXPECT_EQ(AcGePoint3d(11, 18, 8), *ParsePoint(L"@1,-2,3", last));
  EXPECT_EQ(AcGePoint3d(10, 20, 5), *ParsePoint(L"@", last));
  EXPECT_TRUE(ParsePoint(L"@2<90", last)->isEqualTo(AcGePoint3d(10, 22, 5)));
  EXPECT_TRUE(ParsePoint(L"2<180", last)->isEqualTo(AcGePoint3d(-2, 0, 0)));
}

TEST(LineParser, TakesNothingElseForAPoint) {
  for (const wchar_t* line : {L"", L" ", L"1", L"1,", L",1", L"1,2,", L"1,2,3,4", L"1;2", L"a,b", L"1,2x",
                              L"1e999,0", L"nan,0", L"inf,inf", L"0x10,1", L"@@1,2", L"@1<", L"<90", L"#1F"})
    EXPECT_FALSE(ParsePoint(line, {})) << CString(line).ToUtf8();
}

TEST(LineParser, ReadsHandles) {
  EXPECT_EQ(0x1A2Fu, ParseHandle(L"#1a2F")->value());
  EXPECT_FALSE(ParseHandle(L"1A2F"));
  EXPECT_FALSE(ParseHandle(L"#"));
  EXPECT_FALSE(ParseHandle(L"#0"));
  EXPECT_FALSE(ParseHandle(L"#XYZ"));
  EXPECT_FALSE(ParseHandle(L"#11112222333344445"));
}

TEST(LineParser, ReadsWholeNumbersOnly) {
  EXPECT_EQ(12, *ParseInteger(L" 12 "));
  EXPECT_EQ(-3, *ParseInteger(L"-3"));
  for (const wchar_t* line : {L"", L"1.0", L"1e2", L"12a", L"99999999999"}) EXPECT_FALSE(ParseInteger(line));
}

TEST(LineParser, KnowsEscape) {
  EXPECT_TRUE(IsCancelLine(L"*cancel*"));
  EXPECT_TRUE(IsCancelLine(L" *CANCEL* "));
  EXPECT_FALSE(IsCancelLine(L"cancel"));
}

TEST(LineParser, ReadsSelectionLines) {
  using Kind = SelectionLine::Kind;
  EXPECT_EQ(Kind::end, ParseSelection(L"", {})->kind);
  EXPECT_EQ(Kind::all, ParseSelection(L"ALL", {})->kind);
  EXPECT_EQ(Kind::last, ParseSelection(L"_l", {})->kind);
  EXPECT_EQ(Kind::previous, ParseSelection(L"p", {})->kind);
  EXPECT_EQ(Kind::point, ParseSelection(L"3,4", {})->kind);
  EXPECT_EQ(0xABu, ParseSelection(L"#AB", {})->handle.value());
  const auto window = ParseSelection(L"w 1,2 @3,4", {});
  EXPECT_EQ(Kind::window, window->kind);
  EXPECT_TRUE(window->corners);
  EXPECT_EQ(AcGePoint3d(4, 6, 0), window->second);
  EXPECT_FALSE(ParseSelection(L"C", {})->corners);
  for (const wchar_t* line : {L"w 1,2", L"w 1,2 3", L"all 1,2", L"x", L"w 1,2 3,4 5,6", L"#"})
    EXPECT_FALSE(ParseSelection(line, {})) << CString(line).ToUtf8();
}

TEST(LineParser, FindsTheButtonOfAnAnswer) {
  const std::vector<CString> buttons = {L"是(Y)", L"否(N)", L"取消"};
  EXPECT_EQ(L"是", *ParseAnswer(L"answer 是"));
  EXPECT_FALSE(ParseAnswer(L"answers 是"));
  EXPECT_FALSE(ParseAnswer(L"answer"));
  EXPECT_EQ(0u, *FindButton(buttons, L"是"));
  EXPECT_EQ(1u, *FindButton(buttons, L"n"));
  EXPECT_EQ(1u, *FindButton(buttons, L"否(N)"));
  EXPECT_EQ(2u, *FindButton(buttons, L"取消"));
  EXPECT_FALSE(FindButton(buttons, L"(Y)"));
  EXPECT_FALSE(FindButton(buttons, L""));
}

TEST(LineParser, TakesMarksOffCommandNames) {
  EXPECT_EQ(CString(L"LINE"), CommandName(L" '_.line "));
  EXPECT_EQ(CString(L""), CommandName(L"_"));
}

TEST(LineParser, ExcerptsAreSafeToShow) {
  EXPECT_EQ(CString(L"a\xFFFD"
                    L"b"),
            Excerpt(L"a\x1b"
                    L"b"));
  EXPECT_EQ(61, Excerpt(CString(L'x', 1000)).GetLength());
}
