// Numbers to text, and the number at the end of a text.
#include <clocale>
#include <limits>

#include <gtest/gtest.h>

#include "plugin/base/NumberText.h"

namespace {

TEST(NumberText, FtoaTrimsZerosAndTheBarePoint) {
  EXPECT_EQ(ZP::ftoa(0.0, 2, true), L"0");
  EXPECT_EQ(ZP::ftoa(20.0, 2, true), L"20");
  EXPECT_EQ(ZP::ftoa(0.5, 2, true), L"0.5");
  EXPECT_EQ(ZP::ftoa(100.0, 0, true), L"100");
  EXPECT_EQ(ZP::ftoa(15.756, 2, true), L"15.76");
}

TEST(NumberText, FtoaKeepsAllDecimalsWithoutTrim) {
  EXPECT_EQ(ZP::ftoa(20.0, 2, false), L"20.00");
  EXPECT_EQ(ZP::ftoa(0.5, 3, false), L"0.500");
  EXPECT_EQ(ZP::ftoa(1.5, 0, false), L"2");
}

TEST(NumberText, FtoaRoundsTheExactValueWithTiesAwayFromZero) {
  EXPECT_EQ(ZP::ftoa(0.125, 2, true), L"0.13");
  EXPECT_EQ(ZP::ftoa(-0.125, 2, true), L"-0.13");
  EXPECT_EQ(ZP::ftoa(2.5, 0, true), L"3");
  EXPECT_EQ(ZP::ftoa(1.005, 2, true), L"1"); // the double lies below 1.005
}

TEST(NumberText, FtoaNeverPrintsANegativeZero) {
  EXPECT_EQ(ZP::ftoa(-0.0, 2, true), L"0");
  EXPECT_EQ(ZP::ftoa(-0.001, 2, true), L"0");
  EXPECT_EQ(ZP::ftoa(-0.001, 2, false), L"0.00");
}

TEST(NumberText, ItoaIsPlainDecimal) {
  EXPECT_EQ(ZP::itoa(0), L"0");
  EXPECT_EQ(ZP::itoa(-15), L"-15");
  EXPECT_EQ(ZP::itoa(std::numeric_limits<int>::min()), L"-2147483648");
}

TEST(NumberText, TheNumberThatEndsTheTextIsTaken) {
  const std::pair<const wchar_t*, double> cases[] = {
      {L"DN20", 20},  {L"DN20.5", 20.5}, {L"20mm", 0},    {L"", 0},        {L"管", 0},     {L"20", 20},
      {L"Φ108", 108}, {L"a.5", 0.5},     {L".5", 0.5},    {L"1.2.3", 2.3}, {L"1..5", 0.5}, {L"20.", 0},
      {L"20 ", 0},    {L"PPR-25", 25},   {L"-5", 5},      {L"+5", 5},      {L"1e-5", 5},   {L"1e5", 5},
      {L"007", 7},    {L"DN２０", 0},    {L"FP-34 2", 2}, {L"1,5", 5},     {L"0.0", 0},    {L".", 0},
  };
  for (const auto& [text, number] : cases) {
    EXPECT_EQ(ZP::GetCStringRightNumber(text), number) << CString(text).ToUtf8();
  }
}

TEST(NumberText, ALongRowOfDigitsIsStillANumber) {
  EXPECT_EQ(ZP::GetCStringRightNumber(L"x" + CString(std::wstring(30, L'9'))), 1e30);
  EXPECT_EQ(ZP::GetCStringRightNumber(std::wstring(400, L'9')), std::numeric_limits<double>::infinity());
}

} // namespace
