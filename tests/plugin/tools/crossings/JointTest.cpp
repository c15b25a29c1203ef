// What makes a joint, which pipes lie above, and what becomes of the pipes there.
#include "tests/plugin/tools/crossings/CrossingsFixture.h"

namespace {

using Crossings = CrossingsFixture;

TEST_F(Crossings, AtACornerTheHigherPipeRunsToTheJointAndTheLowerStopsAtTheCircle) {
  const auto high = pipe({-1000, 0, 0}, {0, 0, 0}, 3.0);
  const auto low = pipe({0, 0, 0}, {0, 800, 0}, 2.5);
  addKw({high, low});
  expectRuns(high, {-1000, 0, 0}, {0, 0, 0});
  expectRuns(low, {0, 50, 0}, {0, 800, 0});
  const auto symbol = onlySymbol();
  EXPECT_TRUE(positionOf(symbol).isEqualTo({0, 0, 0}));
  EXPECT_EQ(L"2.5", xdata(symbol, L"始点标高"));
  EXPECT_EQ(L"3", xdata(symbol, L"终点标高"));
  expectArcs(symbol, {{225, 135}});
  expectSound();
}

TEST_F(Crossings, WhicheverPipeComesFirstTheResultIsTheSame) {
  const auto low = pipe({0, 0, 0}, {0, 800, 0}, 2.5);
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  addKw({low, high});
  expectRuns(high, {0, 0, 0}, {-1000, 0, 0});
  expectRuns(low, {0, 50, 0}, {0, 800, 0});
  expectArcs(onlySymbol(), {{225, 135}});
}

TEST_F(Crossings, OfPipesAtOneElevationThereIsNone) {
  const auto a = pipe({-1000, 0, 0}, {0, 0, 0}, 3.0);
  const auto b = pipe({0, 0, 0}, {0, 800, 0}, 3.0);
  addKw({a, b});
  EXPECT_TRUE(symbols().empty());
  expectRuns(b, {0, 0, 0}, {0, 800, 0});
}

TEST_F(Crossings, ElevationsUpToAMillimetreApartAreOneInEitherOrder) {
  for (const double other : {3.001, 2.999, 3.0005, 2.9995}) {
    const auto a = pipe({0, 0, 0}, {0, 800, 0}, 3.0);
    const auto b = pipe({0, 0, 0}, {-1000, 0, 0}, other);
    addKw({a, b});
    EXPECT_TRUE(symbols().empty()) << other;
  }
  const auto a = pipe({0, 0, 0}, {0, 800, 0}, 5.0);
  const auto b = pipe({0, 0, 0}, {-1000, 0, 0}, 5.001); // in binary numbers a little more than that
  addKw({a, b});
  EXPECT_TRUE(symbols().empty());
  const auto c = pipe({0, 5000, 0}, {0, 5800, 0}, 5.0);
  const auto d = pipe({0, 5000, 0}, {-1000, 5000, 0}, 5.0011);
  addKw({c, d});
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(Crossings, ABranchAboveAMainSplitsTheMainAroundTheCircle) {
  const auto main = pipe({-1000, 0, 0}, {1000, 0, 0}, 2.0);
  const auto branch = pipe({0, 0, 0}, {0, 700, 0}, 3.0);
  addKw({main, branch});
  const auto lines = all<AcDbLine>();
  ASSERT_EQ(3u, lines.size());
  expectRuns(main, {-1000, 0, 0}, {-50, 0, 0});
  expectRuns(lines[2], {50, 0, 0}, {1000, 0, 0});
  expectRuns(branch, {0, 0, 0}, {0, 700, 0});
  EXPECT_EQ(L"2", xdata(lines[2], L"相对标高")) << "the second part is a pipe like the first";
  expectArcs(onlySymbol(), {{135, 45}});
  expectSound();
}

TEST_F(Crossings, ABranchBelowAMainSplitsTheMainAtTheJoint) {
  const auto main = pipe({-1000, 0, 0}, {1000, 0, 0}, 3.0);
  const auto branch = pipe({0, 0, 0}, {0, 700, 0}, 2.0);
  addKw({main, branch});
  const auto lines = all<AcDbLine>();
  ASSERT_EQ(3u, lines.size());
  expectRuns(main, {-1000, 0, 0}, {0, 0, 0});
  expectRuns(lines[2], {0, 0, 0}, {1000, 0, 0});
  expectRuns(branch, {0, 50, 0}, {0, 700, 0});
  // Openings about 180 degrees and about 0.
  expectArcs(onlySymbol(), {{225, 315}, {45, 135}});
  expectSound();
}

TEST_F(Crossings, PipesThatMerelyCrossHaveNoJoint) {
  const auto a = pipe({-1000, 0, 0}, {1000, 0, 0}, 3.0);
  const auto b = pipe({0, -1000, 0}, {0, 1000, 0}, 2.0);
  addKw({a, b});
  EXPECT_TRUE(symbols().empty());
  EXPECT_EQ(2u, all<AcDbLine>().size());
}

TEST_F(Crossings, OfThreePipesTheTwoHighestSendTheFirstDown) {
  const auto low = pipe({0, 0, 0}, {0, 800, 0}, 1.0);
  const auto left = pipe({0, 0, 0}, {-800, 0, 0}, 2.0);
  const auto right = pipe({0, 0, 0}, {800, 0, 0}, 2.0);
  addKw({low, left, right});
  expectRuns(low, {0, 50, 0}, {0, 800, 0});
  expectRuns(left, {0, 0, 0}, {-800, 0, 0});
  expectRuns(right, {0, 0, 0}, {800, 0, 0});
  expectArcs(onlySymbol(), {{225, 315}, {45, 135}});
}

TEST_F(Crossings, TwoPipesThatShareBothEndsHaveOneJointAtTheStartOfTheFirst) {
  const auto straight = pipe({0, 0, 0}, {1000, 0, 0}, 3.0);
  const auto bent = polyline({{0, 0}, {500, 500}, {1000, 0}}, 2.0);
  addKw({straight, bent});
  EXPECT_TRUE(positionOf(onlySymbol()).isEqualTo({0, 0, 0}));
}

TEST_F(Crossings, AChainOfJointsIsWorkedOnOneAfterTheOther) {
  // A high branch at each of three places of a low main.
  const auto main = pipe({0, 0, 0}, {3000, 0, 0}, 2.0);
  AcDbObjectIdArray ids = array({main});
  for (const double x : {2000.0, 1000.0, 1500.0}) ids.append(pipe({x, 0, 0}, {x, 500, 0}, 3.0));
  ZPKwCl(true, kRadius).AddKw(ids);
  EXPECT_EQ(3u, symbols().size());
  const auto lines = all<AcDbLine>();
  ASSERT_EQ(7u, lines.size());
  expectRuns(main, {0, 0, 0}, {950, 0, 0});
  expectRuns(lines[4], {2050, 0, 0}, {3000, 0, 0});
  expectRuns(lines[5], {1050, 0, 0}, {1450, 0, 0});
  expectRuns(lines[6], {1550, 0, 0}, {1950, 0, 0});
  expectSound();
}

TEST_F(Crossings, APieceSplitOffAtOneJointTakesPartInTheNext) {
  // The main is split at the first branch, and the second branch ends on the part that came of it.
  const auto main = pipe({0, 0, 0}, {3000, 0, 0}, 2.0);
  const auto first = pipe({1000, 0, 0}, {1000, 500, 0}, 3.0);
  const auto second = pipe({2000, 0, 0}, {2000, 500, 0}, 1.0);
  addKw({main, first, second});
  const auto lines = all<AcDbLine>();
  ASSERT_EQ(5u, lines.size());
  expectRuns(lines[3], {1050, 0, 0}, {2000, 0, 0});
  expectRuns(lines[4], {2000, 0, 0}, {3000, 0, 0});
  expectRuns(second, {2000, 50, 0}, {2000, 500, 0});
}

TEST_F(Crossings, ASecondCallOnOneObjectSeesThePipesOfTheFirst) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto low = pipe({0, 0, 0}, {0, 1000, 0}, 2.0);
  ZPKwCl bends(true, kRadius);
  bends.AddKw(array({high}));
  EXPECT_TRUE(symbols().empty());
  bends.AddKw(array({low}));
  EXPECT_EQ(1u, symbols().size());
  expectRuns(low, {0, 50, 0}, {0, 1000, 0});
}

TEST_F(Crossings, APipeInsideTheCircleIsLeftAlone) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto stub = pipe({0, 0, 0}, {0, 30, 0}, 2.0);
  addKw({high, stub});
  expectRuns(stub, {0, 0, 0}, {0, 30, 0});
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(Crossings, APipeThatEndsOnTheCircleIsNotLost) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto low = pipe({0, 0, 0}, {0, 50, 0}, 2.0);
  addKw({high, low});
  expectRuns(low, {0, 0, 0}, {0, 50, 0});
  expectSound();
}

TEST_F(Crossings, AThroughPipeThatBeginsOnTheCircleKeepsWhatLiesBeyond) {
  const auto high = pipe({0, 0, 0}, {0, 1000, 0}, 3.0);
  const auto low = pipe({-50, 0, 0}, {1000, 0, 0}, 2.0);
  addKw({high, low});
  EXPECT_EQ(2u, all<AcDbLine>().size());
  expectRuns(low, {50, 0, 0}, {1000, 0, 0});
}

TEST_F(Crossings, AThroughPipeThatEndsOnTheCircleKeepsWhatLiesAhead) {
  const auto high = pipe({0, 0, 0}, {0, 1000, 0}, 3.0);
  const auto low = pipe({-1000, 0, 0}, {50, 0, 0}, 2.0);
  addKw({high, low});
  EXPECT_EQ(2u, all<AcDbLine>().size());
  expectRuns(low, {-1000, 0, 0}, {-50, 0, 0});
}

TEST_F(Crossings, WherePipesOfOtherHeightsInSpaceSeemToMeetThereIsNoJoint) {
  const auto a = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto b = pipe({0, 0, 100}, {0, 1000, 100}, 2.0);
  addKw({a, b});
  EXPECT_TRUE(symbols().empty());
}

TEST_F(Crossings, FarFromTheOriginAThroughPipeBelongsToTheJoint) {
  const AcGeVector3d far(4123456.789, 512345.678, 0);
  const auto main = pipe(AcGePoint3d(-1000, -333, 0) + far, AcGePoint3d(1000, 777, 0) + far, 2.0);
  AcGePoint3d joint;
  AcDbObjectPointer<AcDbLine>(main, AcDb::kForRead)->getPointAtDist(700, joint);
  const auto branch = pipe(joint, joint + AcGeVector3d(0, 900, 0), 3.0);
  addKw({main, branch});
  EXPECT_EQ(1u, symbols().size());
  EXPECT_EQ(3u, all<AcDbLine>().size());
}

} // namespace
