#include "host/afx/Numbers.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <locale>
#include <random>

#include <gtest/gtest.h>

#include "host/afx/CString.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// How many characters of the text the number takes.
int Taken(const wchar_t* text) {
  const wchar_t* end = nullptr;
  afx::wcstod(text, &end);
  return static_cast<int>(end - text);
}

// A double of any bit pattern that is finite.
double AnyFinite(std::mt19937_64& random) {
  for (;;) {
    const std::uint64_t bits = random();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (std::isfinite(value)) return value;
  }
}

// Rounds the whole decimal expansion as one learns it at school; slow and plain.
std::wstring RoundedByHand(double value, int digits) {
  char buffer[2000];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::fixed, 1100);
  const std::string exact(buffer, result.ptr);
  const std::size_t point = exact.find('.');
  std::string kept(1, '0');
  kept.append(exact, 0, point).append(exact, point + 1, static_cast<std::size_t>(digits));
  if (exact[point + 1 + static_cast<std::size_t>(digits)] >= '5') {
    std::size_t at = kept.size() - 1;
    while (kept[at] == '9') kept[at--] = '0';
    ++kept[at];
  }
  if (digits > 0) kept.insert(kept.size() - static_cast<std::size_t>(digits), 1, '.');
  if (kept[0] == '0') kept.erase(0, 1);
  const bool isZero = kept.find_first_not_of("0.") == std::string::npos;
  return (value < 0 && !isZero ? L"-" : L"") + std::wstring(kept.begin(), kept.end());
}

TEST(Wcstod, ReadsTheLongestValidPrefix) {
  EXPECT_EQ(_wtof(L"12.5mm"), 12.5);
  EXPECT_EQ(_wtof(L" \t\r\n\v\f-3.25"), -3.25);
  EXPECT_EQ(_wtof(L"+.5"), 0.5);
  EXPECT_EQ(_wtof(L"5."), 5);
  EXPECT_EQ(_wtof(L"1.2.3"), 1.2);
  EXPECT_EQ(_wtof(L"1e3"), 1000);
  EXPECT_EQ(_wtof(L"1E-2x"), 0.01);
  EXPECT_EQ(_wtof(L"20×30"), 20);
  EXPECT_EQ(_wtof(L"000012"), 12);
  EXPECT_EQ(Taken(L" 12.5mm"), 5);
  EXPECT_EQ(Taken(L"5."), 2);
}

TEST(Wcstod, AnIncompleteExponentIsLeftAlone) {
  EXPECT_EQ(_wtof(L"1e"), 1);
  EXPECT_EQ(Taken(L"1e"), 1);
  EXPECT_EQ(Taken(L"1e+"), 1);
  EXPECT_EQ(Taken(L"1e-x"), 1);
  EXPECT_EQ(Taken(L"1e+5"), 4);
}

TEST(Wcstod, ATextThatIsNoNumberGivesZeroAndTakesNothing) {
  for (const wchar_t* text :
       {L"", L"  ", L"abc", L"-", L"+-1", L".", L"-.", L".e5", L"e5", L"- 1", L"管径20", L"１２"}) {
    EXPECT_EQ(_wtof(text), 0);
    EXPECT_EQ(Taken(text), 0) << CString(text).ToUtf8();
  }
  EXPECT_EQ(_wtof(nullptr), 0);
  const wchar_t* end = L"";
  EXPECT_EQ(afx::wcstod(nullptr, &end), 0);
  EXPECT_EQ(end, nullptr);
}

TEST(Wcstod, WordsAndHexadecimalsAreNoNumbers) {
  for (const wchar_t* text : {L"inf", L"-inf", L"Infinity", L"nan", L"NAN(1)"}) {
    EXPECT_EQ(_wtof(text), 0);
    EXPECT_EQ(Taken(text), 0);
  }
  EXPECT_EQ(_wtof(L"0x1F"), 0);
  EXPECT_EQ(Taken(L"0x1F"), 1);
}

TEST(Wcstod, BeyondTheRangeGivesInfinityOrZero) {
  EXPECT_EQ(_wtof(L"1e309"), kInfinity);
  EXPECT_EQ(_wtof(L"-1e309"), -kInfinity);
  EXPECT_EQ(_wtof(L"1e-400"), 0);
  EXPECT_EQ(_wtof(L"1e99999999999999999999"), kInfinity);
  EXPECT_EQ(_wtof(L"1e-99999999999999999999"), 0);
  EXPECT_EQ(_wtof(L"0e99999999999999999999"), 0);
  EXPECT_EQ(_wtof((std::wstring(400, L'9')).c_str()), kInfinity);
  EXPECT_EQ(_wtof((L"0." + std::wstring(400, L'0') + L"1").c_str()), 0);
  EXPECT_EQ(_wtof((L"0." + std::wstring(400, L'0') + L"1e401").c_str()), 1);
  EXPECT_EQ(_wtof(L"4.9e-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(_wtof(L"1.7976931348623157e308"), std::numeric_limits<double>::max());
  EXPECT_TRUE(std::signbit(_wtof(L"-0")));
}

TEST(Wcstod, AgreesWithTheCLibraryOnRandomTexts) {
  std::mt19937_64 random(20240601);
  const std::string alphabet = "0123456789012345678901.eE+- x";
  for (int round = 0; round < 200000; ++round) {
    std::string text;
    for (std::size_t length = random() % 12; length > 0; --length)
      text += alphabet[random() % alphabet.size()];
    if (text.find('x') != std::string::npos && text.find("0x") != std::string::npos) continue;
    char* end = nullptr;
    const double expected = std::strtod(text.c_str(), &end);
    const std::wstring wide(text.begin(), text.end());
    const wchar_t* wideEnd = nullptr;
    ASSERT_EQ(afx::wcstod(wide.c_str(), &wideEnd), expected) << text;
    ASSERT_EQ(wideEnd - wide.c_str(), end - text.c_str()) << text;
  }
}

TEST(Wtoi, ReadsTheWholeNumberAtTheStart) {
  EXPECT_EQ(_wtoi(L" 42.9"), 42);
  EXPECT_EQ(_wtoi(L"-7个"), -7);
  EXPECT_EQ(_wtoi(L"+7"), 7);
  EXPECT_EQ(_wtoi(L"1e3"), 1);
  for (const wchar_t* text : {L"", L"-", L"abc", L"--1", L"- 1"}) EXPECT_EQ(_wtoi(text), 0);
  EXPECT_EQ(_wtoi(nullptr), 0);
}

TEST(Wtoi, StopsAtTheEndsOfItsRange) {
  EXPECT_EQ(_wtoi(L"2147483647"), 2147483647);
  EXPECT_EQ(_wtoi(L"2147483648"), 2147483647);
  EXPECT_EQ(_wtoi(L"-2147483648"), std::numeric_limits<int>::min());
  EXPECT_EQ(_wtoi(L"-99999999999999999999999999"), std::numeric_limits<int>::min());
  EXPECT_EQ(_wtoi(L"99999999999999999999999999"), 2147483647);
}

TEST(ShortestDouble, AlwaysShowsThatItIsADouble) {
  EXPECT_EQ(afx::ShortestDouble(20), "20.0");
  EXPECT_EQ(afx::ShortestDouble(0), "0.0");
  EXPECT_EQ(afx::ShortestDouble(-0.0), "-0.0");
  EXPECT_EQ(afx::ShortestDouble(0.1), "0.1");
  EXPECT_EQ(afx::ShortestDouble(1e22), "1e+22");
  EXPECT_EQ(afx::ShortestDouble(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(afx::ShortestDouble(kNan), "nan");
  EXPECT_EQ(afx::ShortestDouble(kInfinity), "inf");
  EXPECT_EQ(afx::ShortestDouble(-kInfinity), "-inf");
}

TEST(ShortestDouble, ReadsBackExactly) {
  std::mt19937_64 random(7);
  for (int round = 0; round < 100000; ++round) {
    const double value = AnyFinite(random);
    const std::string text = afx::ShortestDouble(value);
    ASSERT_EQ(_wtof(std::wstring(text.begin(), text.end()).c_str()), value) << text;
    ASSERT_NE(text.find_first_of(".e"), std::string::npos) << text;
  }
  for (const double value : {std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::max(),
                             std::numeric_limits<double>::min(), 9007199254740993.0}) {
    const std::string text = afx::ShortestDouble(value);
    EXPECT_EQ(_wtof(std::wstring(text.begin(), text.end()).c_str()), value);
  }
}

TEST(FixedDouble, TrimsZerosAndThePoint) {
  EXPECT_EQ(afx::FixedDouble(20.0, 2, true), L"20");
  EXPECT_EQ(afx::FixedDouble(0.5, 2, true), L"0.5");
  EXPECT_EQ(afx::FixedDouble(0.0, 2, true), L"0");
  EXPECT_EQ(afx::FixedDouble(100.0, 0, true), L"100");
  EXPECT_EQ(afx::FixedDouble(100.101, 3, true), L"100.101");
  EXPECT_EQ(afx::FixedDouble(20.0, 2, false), L"20.00");
  EXPECT_EQ(afx::FixedDouble(20.0, 0, false), L"20");
}

TEST(FixedDouble, RoundsTiesAwayFromZero) {
  EXPECT_EQ(afx::FixedDouble(0.125, 2, false), L"0.13");
  EXPECT_EQ(afx::FixedDouble(0.375, 2, false), L"0.38");
  EXPECT_EQ(afx::FixedDouble(-0.125, 2, false), L"-0.13");
  EXPECT_EQ(afx::FixedDouble(0.5, 0, false), L"1");
  EXPECT_EQ(afx::FixedDouble(1.5, 0, false), L"2");
  EXPECT_EQ(afx::FixedDouble(2.5, 0, false), L"3");
  EXPECT_EQ(afx::FixedDouble(9.5, 0, false), L"10");
  EXPECT_EQ(afx::FixedDouble(99.875, 2, true), L"99.88");
  EXPECT_EQ(afx::FixedDouble(99.96875, 1, false), L"100.0");
}

TEST(FixedDouble, RoundsTheBinaryValueAndNotItsShortText) {
  EXPECT_EQ(afx::FixedDouble(1.005, 2, false), L"1.00"); // 1.00499999999999989...
  EXPECT_EQ(afx::FixedDouble(2.675, 2, false), L"2.67"); // 2.67499999999999982...
  EXPECT_EQ(afx::FixedDouble(1.115, 2, false), L"1.11"); // 1.11499999999999999...
  EXPECT_EQ(afx::FixedDouble(1.025, 2, false), L"1.02"); // 1.02499999999999991...
  EXPECT_EQ(afx::FixedDouble(0.145, 2, false), L"0.14"); // 0.14499999999999999...
  EXPECT_EQ(afx::FixedDouble(8.345, 2, false), L"8.35"); // 8.34500000000000063...
  EXPECT_EQ(afx::FixedDouble(0.1, 20, false), L"0.10000000000000000555");
}

TEST(FixedDouble, ZeroNeverHasASign) {
  EXPECT_EQ(afx::FixedDouble(-0.0, 2, true), L"0");
  EXPECT_EQ(afx::FixedDouble(-0.0, 2, false), L"0.00");
  EXPECT_EQ(afx::FixedDouble(-0.004, 2, false), L"0.00");
  EXPECT_EQ(afx::FixedDouble(-0.004, 2, true), L"0");
  EXPECT_EQ(afx::FixedDouble(-0.006, 2, true), L"-0.01");
  EXPECT_EQ(afx::FixedDouble(-std::numeric_limits<double>::denorm_min(), 2, true), L"0");
}

TEST(FixedDouble, DigitsOutsideTheRangeAreCutToIt) {
  EXPECT_EQ(afx::FixedDouble(1.5, -3, false), L"2");
  EXPECT_EQ(afx::FixedDouble(1.5, 1000000, false).size(), 2u + 1100u);
  EXPECT_EQ(afx::FixedDouble(1.5, 1000000, true), L"1.5");
}

TEST(FixedDouble, WritesTheExtremesAndTheNotFinite) {
  const std::wstring largest = afx::FixedDouble(std::numeric_limits<double>::max(), 1100, false);
  EXPECT_EQ(largest.size(), 309u + 1u + 1100u);
  EXPECT_EQ(largest.substr(0, 17), L"17976931348623157");
  const std::wstring smallest = afx::FixedDouble(std::numeric_limits<double>::denorm_min(), 1100, true);
  EXPECT_EQ(smallest.size(), 2u + 1074u);
  EXPECT_EQ(afx::FixedDouble(kNan, 2, true), L"nan");
  EXPECT_EQ(afx::FixedDouble(kInfinity, 2, true), L"inf");
  EXPECT_EQ(afx::FixedDouble(-kInfinity, 2, true), L"-inf");
}

TEST(FixedDouble, AgreesWithRoundingByHand) {
  std::mt19937_64 random(99);
  for (int round = 0; round < 20000; ++round) {
    const int digits = static_cast<int>(random() % 8);
    // Any double, numbers of the size that people type, and numbers that are often ties.
    const double values[] = {AnyFinite(random), static_cast<double>(random() % 10000000) / 1000.0,
                             static_cast<double>(random() % 100000) / 512.0};
    for (const double value : values) {
      ASSERT_EQ(afx::FixedDouble(value, digits, false), RoundedByHand(value, digits))
          << afx::ShortestDouble(value) << " to " << digits;
    }
  }
}

// A locale made here, so that the test needs none to be installed.
class DecimalComma : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};
class WideDecimalComma : public std::numpunct<wchar_t> {
 protected:
  wchar_t do_decimal_point() const override { return L','; }
  wchar_t do_thousands_sep() const override { return L'.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Numbers, DoNotLookAtTheLocale) {
  const std::string cBefore = std::setlocale(LC_ALL, nullptr);
  const std::locale before = std::locale::global(
      std::locale(std::locale(std::locale::classic(), new DecimalComma), new WideDecimalComma));
  // The C library's own, where one with a decimal comma is installed.
  for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "ru_RU.UTF-8"})
    if (std::setlocale(LC_ALL, name)) break;
  CString text;
  text.Format(L"%.2f %g %d", 1234.5, 2.5, 1234567);
  EXPECT_EQ(text, L"1234.50 2.5 1234567");
  EXPECT_EQ(_wtof(L"1.5"), 1.5);
  EXPECT_EQ(_wtof(L"1,5"), 1);
  EXPECT_EQ(afx::FixedDouble(1234.5, 1, false), L"1234.5");
  EXPECT_EQ(afx::ShortestDouble(1234.5), "1234.5");
  std::locale::global(before);
  std::setlocale(LC_ALL, cBefore.c_str());
}

} // namespace
