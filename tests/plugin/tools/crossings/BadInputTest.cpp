// What no drawing should hold, and some drawing does.
#include <limits>

#include "host/db/AcDbText.h"
#include "tests/plugin/tools/crossings/CrossingsFixture.h"

namespace {

class CrossingBadInput : public CrossingsFixture {
 protected:
  void expectUntouched() {
    expectRuns(high, {0, 0, 0}, {-1000, 0, 0});
    expectRuns(low, {0, 0, 0}, {0, 1000, 0});
    EXPECT_TRUE(symbols().empty());
  }
  AcDbObjectId high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  AcDbObjectId low = pipe({0, 0, 0}, {0, 1000, 0}, 2.0);
};

TEST_F(CrossingBadInput, NoIdsMakeNothing) {
  addKw({});
  expectUntouched();
}

TEST_F(CrossingBadInput, NullIdsArePassedOver) {
  addKw({{}, high, {}, low, {}});
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(CrossingBadInput, ErasedEntitiesArePassedOver) {
  AcDbObjectPointer<AcDbEntity>(low, AcDb::kForWrite)->erase();
  addKw({high, low});
  EXPECT_TRUE(symbols().empty());
}

TEST_F(CrossingBadInput, EntitiesErasedBetweenTwoCallsArePassedOver) {
  ZPKwCl bends(true, kRadius);
  bends.AddKw(array({high}));
  AcDbObjectPointer<AcDbEntity>(high, AcDb::kForWrite)->erase();
  bends.AddKw(array({low}));
  EXPECT_TRUE(symbols().empty());
}

TEST_F(CrossingBadInput, PipesOnLockedLayersArePassedOver) {
  const auto layer = addLayer(L"锁");
  AcDbObjectPointer<AcDbEntity>(high, AcDb::kForWrite)->setLayer(layer);
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsLocked(true);
  addKw({high, low});
  expectUntouched();
}

TEST_F(CrossingBadInput, PipesWhoseLayerWasLockedSinceCountAndStayAsTheyAre) {
  const auto layer = addLayer(L"锁");
  AcDbObjectPointer<AcDbEntity>(low, AcDb::kForWrite)->setLayer(layer);
  ZPKwCl bends(true, kRadius);
  bends.AddKw(array({low}));
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsLocked(true);
  bends.AddKw(array({high}));
  EXPECT_EQ(1u, symbols().size());
  EXPECT_EQ(L"2", xdata(onlySymbol(), L"始点标高"));
  expectRuns(low, {0, 0, 0}, {0, 1000, 0});
}

TEST_F(CrossingBadInput, PipesOnFrozenLayersAreWorkedOn) {
  const auto layer = addLayer(L"冻");
  for (const auto& id : {high, low}) AcDbObjectPointer<AcDbEntity>(id, AcDb::kForWrite)->setLayer(layer);
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsFrozen(true);
  addKw({high, low});
  expectRuns(low, {0, 50, 0}, {0, 1000, 0});
}

TEST_F(CrossingBadInput, AnEntityThatSomebodyReadsIsPassedOver) {
  const AcDbObjectPointer<AcDbEntity> reader(high, AcDb::kForRead);
  addKw({high, low});
  EXPECT_TRUE(symbols().empty());
}

TEST_F(CrossingBadInput, EntitiesThatAreNoCurvesArePassedOver) {
  const auto text = add(new AcDbText);
  addKw({text, high, low, database().layerTableId()});
  EXPECT_EQ(1u, symbols().size());
  EXPECT_FALSE(text.isErased());
}

TEST_F(CrossingBadInput, ACircleTakesPartAndCantBeCut) {
  const auto circle = withElevation(add(new AcDbCircle({300, 400, 0}, {0, 0, 1}, 500)), 1.0);
  addKw({high, low, circle});
  EXPECT_EQ(1u, symbols().size());
  EXPECT_EQ(L"1", xdata(onlySymbol(), L"始点标高"));
  EXPECT_EQ(1u, all<AcDbCircle>().size());
}

TEST_F(CrossingBadInput, AnIdThatComesTwiceIsOnePipe) {
  addKw({low, high, low, high, high});
  EXPECT_EQ(1u, symbols().size());
  EXPECT_EQ(2u, all<AcDbLine>().size());
  expectRuns(low, {0, 50, 0}, {0, 1000, 0});
  expectArcs(onlySymbol(), {{225, 135}});
}

TEST_F(CrossingBadInput, AThroughPipeWhoseIdComesTwiceIsSplitOnce) {
  const auto main = pipe({-1000, 5000, 0}, {1000, 5000, 0}, 2.0);
  const auto branch = pipe({0, 5000, 0}, {0, 6000, 0}, 3.0);
  addKw({main, branch, main});
  EXPECT_EQ(5u, all<AcDbLine>().size());
  expectRuns(main, {-1000, 5000, 0}, {-50, 5000, 0});
}

TEST_F(CrossingBadInput, PipesWithoutALengthStay) {
  const auto point = pipe({0, 0, 0}, {0, 0, 0}, 1.0);
  addKw({high, low, point});
  expectRuns(point, {0, 0, 0}, {0, 0, 0});
  expectRuns(low, {0, 50, 0}, {0, 1000, 0});
  EXPECT_EQ(L"1", xdata(onlySymbol(), L"始点标高"));
  expectSound();
}

TEST_F(CrossingBadInput, PolylinesWithoutVerticesArePassedOver) {
  const auto none = add(new AcDbPolyline);
  const auto one = polyline({{0, 0}}, 1.0);
  addKw({none, high, one, low});
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(CrossingBadInput, CoincidentPipesAreCutTogether) {
  const auto twin = pipe({0, 0, 0}, {0, 1000, 0}, 2.0);
  addKw({high, low, twin});
  expectRuns(low, {0, 50, 0}, {0, 1000, 0});
  expectRuns(twin, {0, 50, 0}, {0, 1000, 0});
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(CrossingBadInput, CoincidentHigherPipesOpenTheCircleOnce) {
  const auto twin = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  addKw({high, low, twin});
  expectArcs(onlySymbol(), {{225, 135}});
}

TEST_F(CrossingBadInput, CoincidentPipesOfTwoElevationsHaveOneJointAtTheirStart) {
  const auto above = pipe({0, 0, 0}, {0, 1000, 0}, 5.0);
  addKw({low, above});
  expectRuns(above, {0, 0, 0}, {0, 1000, 0});
  expectRuns(low, {0, 50, 0}, {0, 1000, 0});
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(CrossingBadInput, ARadiusThatNoCircleCanHaveLeavesTheDrawingAsItIs) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double radius : {0.0, -50.0, 1e-9, infinity, -infinity, std::nan(""), 1e200}) {
    ZPKwCl(true, radius).AddKw(array({high, low}));
    expectUntouched();
  }
}

TEST_F(CrossingBadInput, ARadiusThatIsNoneLeavesOldSymbolsToo) {
  addKw({high, low});
  const auto symbol = onlySymbol();
  ZPKwCl(true, 0).AddKw(array({high, low, symbol}));
  EXPECT_FALSE(symbol.isErased());
}

TEST_F(CrossingBadInput, ARadiusLargerThanEveryPipeGivesAFullCircleAndCutsNothing) {
  ZPKwCl(true, 5000).AddKw(array({high, low}));
  expectRuns(high, {0, 0, 0}, {-1000, 0, 0});
  expectRuns(low, {0, 0, 0}, {0, 1000, 0});
  ASSERT_EQ(1u, partsOf(onlySymbol()).size());
  EXPECT_TRUE(AcDbObjectPointer<AcDbCircle>(partsOf(onlySymbol())[0], AcDb::kForRead));
}

TEST_F(CrossingBadInput, ElevationsThatAreNoNumbersCountAsNone) {
  for (const auto* text : {L"", L"abc", L"nan", L"inf", L"-inf", L"1e9", L"-1e9", L"1e999"}) {
    SCOPED_TRACE(CString(text).ToUtf8());
    const auto odd = pipe({5000, 0, 0}, {6000, 0, 0}, 0);
    ZP::SetXdata(odd, L"相对标高", text);
    const auto below = pipe({5000, 0, 0}, {5000, 1000, 0}, -1.0);
    addKw({odd, below});
    EXPECT_EQ(L"0", xdata(onlySymbol(), L"终点标高"));
    EXPECT_EQ(L"-1", xdata(onlySymbol(), L"始点标高"));
    for (const auto& id : {odd, below, onlySymbol()})
      AcDbObjectPointer<AcDbEntity>(id, AcDb::kForWrite)->erase();
  }
}

TEST_F(CrossingBadInput, PipesWithoutElevationsLieAtNone) {
  const auto bare = addLine({5000, 0, 0}, {6000, 0, 0});
  const auto below = pipe({5000, 0, 0}, {5000, 1000, 0}, -1.0);
  addKw({bare, below});
  EXPECT_EQ(L"0", xdata(onlySymbol(), L"终点标高"));
}

TEST_F(CrossingBadInput, TheDeepestAndHighestElevationsCount) {
  const auto top = pipe({5000, 0, 0}, {6000, 0, 0}, 999999);
  const auto bottom = pipe({5000, 0, 0}, {5000, 1000, 0}, -999999);
  addKw({bottom, top});
  EXPECT_EQ(L"999999", xdata(onlySymbol(), L"终点标高"));
  EXPECT_EQ(L"-999999", xdata(onlySymbol(), L"始点标高"));
}

TEST_F(CrossingBadInput, ThousandsOfPipesThroughOnePointAreOneJoint) {
  AcDbObjectIdArray ids;
  constexpr int kPipes = 3000;
  for (int i = 0; i < kPipes; ++i) {
    const double angle = std::numbers::pi * i / kPipes;
    const AcGePoint3d tip = AcGePoint3d(10000 + i, 0, 0).rotateBy(angle, AcGeVector3d::kZAxis);
    ids.append(pipe(i % 3 == 0 ? AcGePoint3d() - tip.asVector() : AcGePoint3d(), tip, i % 7));
  }
  ZPKwCl bends(true, kRadius);
  bends.AddKw(ids);
  EXPECT_EQ(1u, symbols().size());
  expectSound();
}

TEST_F(CrossingBadInput, ThousandsOfPipesOverOneAnotherAreOneJoint) {
  AcDbObjectIdArray ids;
  for (int i = 0; i < 3000; ++i) ids.append(pipe({0, 9000, 0}, {5000, 9000, 0}, i % 2));
  ZPKwCl(true, kRadius).AddKw(ids);
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(CrossingBadInput, WithoutADrawingNothingHappens) {
  acDocManagerPtr()->closeAll();
  ZPKwCl bends(true, kRadius);
  bends.AddKw(AcDbObjectIdArray());
  SUCCEED();
}

} // namespace
