#include "plugin/base/ExactText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

TEST(ExactText, ShowsNoMoreThanItNeeds) {
  EXPECT_EQ(ZP::ExactText(80), L"80");
  EXPECT_EQ(ZP::ExactText(0), L"0");
  EXPECT_EQ(ZP::ExactText(-0.5), L"-0.5");
  EXPECT_EQ(ZP::ExactText(1.286), L"1.286");
  EXPECT_EQ(ZP::ExactText(1e-7), L"1e-07");
  EXPECT_EQ(ZP::ExactText(1e22), L"1e+22");
}

TEST(ExactText, ReadsBackAsTheSameNumber) {
  for (const double value : {0.1 + 0.2, 1.0 / 3, 64.5, 1e300, 5e-324, 123456789012345678.0})
    EXPECT_EQ(afx::wcstod(ZP::ExactText(value), nullptr), value);
}

TEST(ExactText, NamesWhatIsNoNumber) {
  EXPECT_EQ(ZP::ExactText(std::nan("")), L"nan");
  EXPECT_EQ(ZP::ExactText(-std::numeric_limits<double>::infinity()), L"-inf");
}

} // namespace
