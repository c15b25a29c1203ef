#include "plugin/resistance/TeeFlows.h"

#include <gtest/gtest.h>

#include <set>

#include "host/afx/CString.h"

namespace {

using resistance::kTeeFlows;

TEST(TeeFlows, AreFifteenThatDiffer) {
  std::set<CString> keys;
  for (const auto& flow : kTeeFlows) keys.insert(flow.key);
  EXPECT_EQ(keys.size(), 15u);
}

// "3汇1-3" is the flow 1→3 through the form 3汇.
TEST(TeeFlows, HaveKeysOfTheirFormAndTheirFlow) {
  for (const auto& flow : kTeeFlows) {
    const CString way = flow.flow;
    ASSERT_EQ(way.GetLength(), 3);
    EXPECT_EQ(flow.key, flow.form + (way.Left(1) + L"-" + way.Right(1))) << CString(flow.key).ToUtf8();
  }
}

TEST(TeeFlows, BelongToEightForms) {
  CString forms;
  for (const auto& flow : kTeeFlows)
    if (forms.Find(CString(L" ") + flow.form + L" ") < 0) forms += CString(L" ") + flow.form + L" ";
  EXPECT_EQ(forms, L" 3汇  1分  2汇  2分  斜3分  斜1汇  斜3汇  4通 ");
}

// Siblings take the records as 15 numbers in a row: the fields stand in the order of the list, without gaps,
// and that of the cross's flow 1-4 before 1-3.
TEST(TeeFlows, ListTheFieldsOfBothRecordsInTheirOrder) {
  static_assert(sizeof(CZPPipe3T4TCoe) == 15 * sizeof(double));
  static_assert(sizeof(CZPPipe3T4TCoeNum) == 15 * 4);
  CZPPipe3T4TCoe tees;
  CZPPipe3T4TCoeNum counts;
  int i = 0;
  for (const auto& flow : kTeeFlows) {
    EXPECT_EQ(&(tees.*flow.coefficient) - &tees.merge3From1, i) << CString(flow.key).ToUtf8();
    EXPECT_EQ(&(counts.*flow.count) - &counts.merge3From1, i) << CString(flow.key).ToUtf8();
    ++i;
  }
  EXPECT_EQ(&tees.cross1To4 - &tees.merge3From1, 13);
  EXPECT_EQ(&tees.cross1To3 - &tees.merge3From1, 14);
  EXPECT_EQ(&counts.cross1To4 - &counts.merge3From1, 13);
  EXPECT_EQ(&counts.cross1To3 - &counts.merge3From1, 14);
}

TEST(TeeFlows, CostOneTwoAndThreeAndThenNothingByDefault) {
  const CZPPipe3T4TCoe tees;
  EXPECT_EQ(tees.merge3From1, 1.0);
  EXPECT_EQ(tees.merge3From2, 2.0);
  EXPECT_EQ(tees.split1To2, 3.0);
  for (int i = 3; i < 15; ++i) EXPECT_EQ(tees.*kTeeFlows[i].coefficient, 0) << i;
  const CZPPipe3T4TCoeNum counts;
  for (const auto& flow : kTeeFlows) EXPECT_EQ(counts.*flow.count, 0);
}

} // namespace
