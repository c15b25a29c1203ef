#include <type_traits>

#include "tests/plugin/pipes/limits/LimitFixture.h"

namespace {

using VelocityLimits = LimitFixture;

TEST(Range, IsZeroByDefaultAndTakesMinimumBeforeMaximum) {
  EXPECT_EQ(SZPRange().dbMin, 0);
  EXPECT_EQ(SZPRange().dbMax, 0);
  const SZPRange range(0.4, 0.5);
  EXPECT_EQ(range.dbMin, 0.4);
  EXPECT_EQ(range.dbMax, 0.5);
}

TEST(PipeLimit, BeginsWithoutNameAndWithRangesOfZero) {
  const CZPPipeLimit limit;
  EXPECT_TRUE(limit.GetName().IsEmpty());
  for (const SZPRange& range : {limit.m_velocity, limit.m_friction}) {
    EXPECT_EQ(range.dbMin, 0);
    EXPECT_EQ(range.dbMax, 0);
  }
}

TEST(PipeLimit, IsCopiedWithBothRanges) {
  CZPPipeLimit limit;
  limit.SetName(L"25");
  limit.m_velocity = SZPRange(0.6, 0.7);
  limit.m_friction = SZPRange(100, 400);
  CZPPipeLimit copy;
  copy = CZPPipeLimit(limit);
  EXPECT_EQ(copy.GetName(), L"25");
  EXPECT_EQ(copy.m_velocity.dbMax, 0.7);
  EXPECT_EQ(copy.m_friction.dbMin, 100);
  EXPECT_TRUE(std::has_virtual_destructor_v<CZPPipeLimit>);
}

TEST_F(VelocityLimits, AreOneObject) {
  EXPECT_EQ(CZPFlowVelocityMng::GetInstance(), CZPFlowVelocityMng::GetInstance());
}

TEST_F(VelocityLimits, AreFoundByExactName) {
  CZPPipeLimit* row = AddRow(L"25");
  AddRow(L"32");
  EXPECT_EQ(table.GetPipeLimit(L"25", 0), row);
  EXPECT_EQ(table.GetPipeLimit(L"25", 1), row);
  EXPECT_EQ(table.GetPipeLimit(L"25 ", 0), nullptr);
}

TEST_F(VelocityLimits, OfANameThatIsMissingAreTheNearestOnlyWhereAskedFor) {
  AddRow(L"15");
  CZPPipeLimit* near = AddRow(L"20");
  AddRow(L"50");
  EXPECT_EQ(table.GetPipeLimit(L"25", 0), nullptr);
  EXPECT_EQ(table.GetPipeLimit(L"25", 1), near);
  EXPECT_EQ(table.GetPipeLimit(L"25", -1), near); // anything but 0
}

TEST_F(VelocityLimits, EquallyNearAreTheOneThatStandsFirst) {
  CZPPipeLimit* twenty = AddRow(L"20");
  CZPPipeLimit* thirty = AddRow(L"30");
  EXPECT_EQ(table.GetPipeLimit(L"25", 1), twenty);
  std::swap(table.m_arrLimits[0], table.m_arrLimits[1]);
  EXPECT_EQ(table.GetPipeLimit(L"25", 1), thirty);
}

TEST_F(VelocityLimits, OfAnotherSpellingOfTheNumberAreReachedByDistanceZero) {
  AddRow(L"20");
  CZPPipeLimit* row = AddRow(L"25");
  AddRow(L"26");
  for (const wchar_t* spelling : {L"25.0", L" 25", L"25mm", L"2.5e1", L"+25", L"025"}) {
    EXPECT_EQ(table.GetPipeLimit(spelling, 0), nullptr);
    EXPECT_EQ(table.GetPipeLimit(spelling, 1), row) << CString(spelling).ToUtf8();
  }
}

TEST_F(VelocityLimits, ExactNameGoesBeforeAnEarlierRowOfTheSameNumber) {
  AddRow(L"25.0");
  CZPPipeLimit* exact = AddRow(L"25");
  EXPECT_EQ(table.GetPipeLimit(L"25", 1), exact);
}

// A text that begins with no number counts as 0, so a pipe name in place of a size finds the smallest size.
TEST_F(VelocityLimits, OfAPipeNameAreThoseOfTheSmallestNumber) {
  AddRow(L"25");
  CZPPipeLimit* smallest = AddRow(L"15");
  AddRow(L"20");
  EXPECT_EQ(table.GetPipeLimit(L"DN25", 1), smallest);
  EXPECT_EQ(table.GetPipeLimit(L"", 1), smallest);
  CZPPipeLimit* wordy = AddRow(L"De20"); // counts as 0 as well
  EXPECT_EQ(table.GetPipeLimit(L"DN25", 1), wordy);
}

TEST_F(VelocityLimits, OfNumbersBelowZeroAndBeyondMeasureHaveDistancesToo) {
  const CString huge(std::wstring(400, L'9'));
  CZPPipeLimit* negative = AddRow(L"-10");
  CZPPipeLimit* infinite = AddRow(huge);
  EXPECT_EQ(table.GetPipeLimit(L"5", 1), negative);
  EXPECT_EQ(table.GetPipeLimit(L"-99", 1), negative);
  EXPECT_EQ(table.GetPipeLimit(L"1e999", 1), infinite); // both are beyond measure, so nothing lies between
  EXPECT_EQ(table.GetPipeLimit(L"-1e999", 1), negative);
  std::swap(table.m_arrLimits[0], table.m_arrLimits[1]);
  EXPECT_EQ(table.GetPipeLimit(L"1e999", 1), infinite);
  EXPECT_EQ(table.GetPipeLimit(L"5", 1), negative);
}

TEST_F(VelocityLimits, OfAnEmptyTableAreNull) {
  for (const int nearest : {0, 1})
    for (const wchar_t* name : {L"", L"25"}) EXPECT_EQ(table.GetPipeLimit(name, nearest), nullptr);
}

TEST_F(VelocityLimits, PassOverNullRows) {
  table.m_arrLimits.Add(nullptr);
  EXPECT_EQ(table.GetPipeLimit(L"25", 1), nullptr);
  CZPPipeLimit* row = AddRow(L"20");
  EXPECT_EQ(table.GetPipeLimit(L"25", 1), row);
  EXPECT_EQ(table.GetPipeLimit(L"20", 0), row);
}

TEST_F(VelocityLimits, RefuseNullAPointerTwiceAndASecondRowOfTheName) {
  CZPPipeLimit* row = AddRow(L"25");
  EXPECT_EQ(table.Add(nullptr), 0);
  EXPECT_EQ(table.Add(row), 0);
  CZPPipeLimit second; // stays the caller's
  second.SetName(L"25");
  EXPECT_EQ(table.Add(&second), 0);
  second.SetName(L"25.0");
  EXPECT_EQ(Names(), L"25");
}

TEST_F(VelocityLimits, AreRemovedByPointer) {
  CZPPipeLimit* row = AddRow(L"25");
  AddRow(L"32");
  CZPPipeLimit stranger;
  stranger.SetName(L"25");
  EXPECT_EQ(table.Remove(&stranger), 0);
  EXPECT_EQ(table.Remove(nullptr), 0);
  EXPECT_EQ(table.Remove(row), 1);
  EXPECT_EQ(Names(), L"32");
}

TEST_F(VelocityLimits, KeepTheirPlaceWhenTheirNameChanges) {
  AddRow(L"20");
  CZPPipeLimit* row = AddRow(L"25");
  AddRow(L"40");
  row->SetName(L"50");
  EXPECT_EQ(Names(), L"20 50 40");
  EXPECT_EQ(table.GetPipeLimit(L"50", 0), row);
}

// In a process of its own, where the table has not been built yet.
TEST(FirstUseOfTheVelocityLimits, ReadsTheFileOnceAndSavesNothing) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(
      {
        const TempInstall install;
        const char* file = "Data/PipeLimit.idp";
        install.Write(file, R"(["",{"Version":"1.0","水管界限方案":["",{"0":[0,{"25":0}]}]}])");
        bool ok = CZPFlowVelocityMng::GetInstance()->GetPipeLimit(L"25", 0) != nullptr;
        std::filesystem::remove(install.Root() / file);
        ok = ok && CZPFlowVelocityMng::GetInstance()->m_arrLimits.GetSize() == 1;
        ok = ok && !install.Has(file);
        std::exit(ok ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST(FirstUseOfTheVelocityLimits, ThatMeetsAnEntryWithoutARowTriesAgainNextTime) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(
      {
        const TempInstall install;
        const char* file = "Data/PipeLimit.idp";
        install.Write(file, R"(["",{"Version":"1.0","水管界限方案":["",{"0":0}]}])");
        bool thrown = false;
        try {
          CZPFlowVelocityMng::GetInstance();
        } catch (const CInvalidArgException&) {
          thrown = true;
        }
        install.Write(file, R"(["",{"Version":"1.0","水管界限方案":["",{"0":[0,{"25":0}]}]}])");
        const bool ok = thrown && CZPFlowVelocityMng::GetInstance()->GetPipeLimit(L"25", 0);
        std::exit(ok ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

} // namespace
