// Running again over a drawing that has symbols.
#include "tests/plugin/tools/crossings/CrossingsFixture.h"

namespace {

class OldSymbols : public CrossingsFixture {
 protected:
  // All that is in the drawing, in its order.
  void runOverAll(double radius = kRadius, bool arcOuch = true) {
    AcDbObjectIdArray ids;
    for (const auto& id : all<AcDbEntity>()) ids.append(id);
    ZPKwCl(arcOuch, radius).AddKw(ids);
  }
  // A run that only takes the symbols out: all pipes lie at one elevation.
  void removeAll() {
    AcDbObjectIdArray ids;
    for (const auto& id : all<AcDbEntity>()) ids.append(id);
    ZPKwCl bends(true, kRadius);
    for (const auto& id : all<AcDbCurve>()) CZPMainPipe(id).SetElevation(0);
    bends.AddKw(ids);
  }
};

TEST_F(OldSymbols, GoAndTheirPipesRunToTheJointAgainBeforeNewOnesAreMade) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto low = pipe({0, 0, 0}, {0, 800, 0}, 2.0);
  runOverAll();
  const auto old = onlySymbol();
  CZPMainPipe(low).SetElevation(4.0); // now the other one lies below
  runOverAll();
  EXPECT_TRUE(old.isErased());
  expectRuns(high, {-50, 0, 0}, {-1000, 0, 0});
  expectRuns(low, {0, 0, 0}, {0, 800, 0});
  EXPECT_EQ(L"4", xdata(onlySymbol(), L"终点标高"));
  expectSound();
}

TEST_F(OldSymbols, WithAFullCircleAreTakenBackToo) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto low = pipe({0, 0, 0}, {0, 800, 0}, 2.0);
  runOverAll(kRadius, false);
  expectRuns(low, {0, 50, 0}, {0, 800, 0});
  runOverAll(120, false);
  expectRuns(high, {0, 0, 0}, {-1000, 0, 0});
  expectRuns(low, {0, 120, 0}, {0, 800, 0});
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(OldSymbols, AloneAreTakenOutAndNothingIsMade) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto low = pipe({0, 0, 0}, {0, 800, 0}, 2.0);
  runOverAll();
  addKw({onlySymbol()});
  EXPECT_TRUE(symbols().empty());
  expectRuns(low, {0, 50, 0}, {0, 800, 0}); // it was not selected
  expectRuns(high, {0, 0, 0}, {-1000, 0, 0});
}

TEST_F(OldSymbols, AloneAreTakenOutWithTheMessage) {
  define(L"BENDS", [] { ZPKwCl(true, kRadius).Go(); });
  pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  pipe({0, 0, 0}, {0, 800, 0}, 2.0);
  run(L"BENDS", {L"all", L""});
  EXPECT_FALSE(frontEnd.said(L"没有符合"));
  run(L"BENDS", {L"l", L""});
  EXPECT_TRUE(symbols().empty());
  EXPECT_TRUE(frontEnd.said(L"\n没有符合生成扣弯条件的管线!"));
}

TEST_F(OldSymbols, GiveBackBothPartsOfASplitPipeWhichStaySplit) {
  pipe({-1000, 0, 0}, {1000, 0, 0}, 2.0);
  pipe({0, 0, 0}, {0, 700, 0}, 3.0);
  runOverAll();
  removeAll();
  EXPECT_TRUE(symbols().empty());
  const auto lines = all<AcDbLine>();
  ASSERT_EQ(3u, lines.size());
  expectRuns(lines[0], {-1000, 0, 0}, {0, 0, 0});
  expectRuns(lines[2], {0, 0, 0}, {1000, 0, 0});
}

TEST_F(OldSymbols, AtBothEndsOfAPipeGiveItBackAtBoth) {
  const auto between = pipe({0, 0, 0}, {0, 800, 0}, 2.0);
  pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  pipe({0, 800, 0}, {-1000, 800, 0}, 3.0);
  runOverAll();
  expectRuns(between, {0, 50, 0}, {0, 750, 0});
  removeAll();
  expectRuns(between, {0, 0, 0}, {0, 800, 0});
}

TEST_F(OldSymbols, GiveBackArcsAndPolylines) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  auto* bow = new AcDbArc({0, 500, 0}, {0, 0, 1}, 500, -std::numbers::pi / 2, 0);
  const auto arc = withElevation(add(bow), 2.0);
  const auto bent = polyline({{0, 0}, {300, -300}, {300, -900}}, 2.0);
  runOverAll();
  removeAll();
  expectRuns(high, {0, 0, 0}, {-1000, 0, 0});
  expectRuns(arc, {0, 0, 0}, {500, 500, 0});
  expectRuns(bent, {0, 0, 0}, {300, -900, 0});
}

TEST_F(OldSymbols, LeaveAPipeThatCrossesTheirCircleTwice) {
  pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  pipe({0, 0, 0}, {0, 800, 0}, 2.0);
  runOverAll();
  const auto through = pipe({-500, -500, 0}, {500, 500, 0}, 1.0);
  removeAll();
  expectRuns(through, {-500, -500, 0}, {500, 500, 0});
  EXPECT_TRUE(symbols().empty());
}

TEST_F(OldSymbols, LeaveAPipeThatEndsOnTheCircleWithoutLeadingToTheJoint) {
  pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  pipe({0, 0, 0}, {0, 800, 0}, 2.0);
  runOverAll();
  const auto beside = pipe({50, 0, 0}, {50, 500, 0}, 1.0);
  removeAll();
  expectRuns(beside, {50, 0, 0}, {50, 500, 0});
}

TEST_F(OldSymbols, ThatShowNothingAreErasedAndTheirPipesStayCut) {
  AcDbObjectIdArray ids;
  for (const auto& to :
       {AcGePoint3d(900, 0, 0), AcGePoint3d(0, 900, 0), AcGePoint3d(-900, 0, 0), AcGePoint3d(0, -900, 0)})
    pipe({0, 0, 0}, to, 3.0);
  const auto low = pipe({0, 0, 0}, {700, 700, 0}, 2.0);
  runOverAll();
  ASSERT_TRUE(partsOf(onlySymbol()).empty());
  const AcGePoint3d cut = AcGePoint3d(50, 0, 0).rotateBy(std::numbers::pi / 4, AcGeVector3d::kZAxis);
  expectRuns(low, cut, {700, 700, 0});
  runOverAll();
  EXPECT_TRUE(symbols().empty());
  expectRuns(low, cut, {700, 700, 0});
}

TEST_F(OldSymbols, ThatHoldSomethingElseAreErasedAlone) {
  const auto odd = insert(L"*U", {new AcDbLine({0, 0, 0}, {50, 0, 0})}, {0, 0, 0});
  const auto beside = pipe({50, 0, 0}, {500, 0, 0}, 1.0);
  runOverAll();
  EXPECT_TRUE(odd.isErased());
  expectRuns(beside, {50, 0, 0}, {500, 0, 0});
}

TEST_F(OldSymbols, GoByTheirFirstPart) {
  const auto odd =
      insert(L"*U", {new AcDbCircle({0, 0, 0}, {0, 0, 1}, 50), new AcDbCircle({0, 0, 0}, {0, 0, 1}, 80)},
             {100, 0, 0});
  const auto first = pipe({150, 0, 0}, {500, 0, 0}, 1.0);
  const auto second = pipe({100, 80, 0}, {100, 500, 0}, 1.0);
  runOverAll();
  EXPECT_TRUE(odd.isErased());
  expectRuns(first, {100, 0, 0}, {500, 0, 0});
  expectRuns(second, {100, 80, 0}, {100, 500, 0});
}

TEST_F(OldSymbols, OnALockedLayerStay) {
  const auto layer = addLayer(L"锁");
  pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto low = pipe({0, 0, 0}, {0, 800, 0}, 2.0);
  runOverAll();
  const auto symbol = onlySymbol();
  AcDbObjectPointer<AcDbEntity>(symbol, AcDb::kForWrite)->setLayer(layer);
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsLocked(true);
  runOverAll();
  EXPECT_EQ(symbol, onlySymbol());
  expectRuns(low, {0, 50, 0}, {0, 800, 0});
}

TEST_F(OldSymbols, OfAScaledInsertionHaveTheirCircleAsItIsDrawn) {
  const auto odd = insert(L"*U", {new AcDbCircle({0, 0, 0}, {0, 0, 1}, 10)}, {0, 0, 0});
  AcDbObjectPointer<AcDbBlockReference>(odd, AcDb::kForWrite)->setScaleFactors({5, 5, 5});
  const auto cut = pipe({50, 0, 0}, {500, 0, 0}, 1.0);
  runOverAll();
  EXPECT_TRUE(odd.isErased());
  expectRuns(cut, {0, 0, 0}, {500, 0, 0});
}

TEST_F(OldSymbols, FarFromTheOriginGiveTheirPipesBackToo) {
  const AcGeVector3d far(4123456.789, 512345.678, 0);
  const auto high = pipe(AcGePoint3d() + far, AcGePoint3d(-1000, 200, 0) + far, 3.0);
  const auto low = pipe(AcGePoint3d() + far, AcGePoint3d(300, 777, 0) + far, 2.0);
  runOverAll();
  runOverAll();
  runOverAll(80);
  EXPECT_EQ(1u, symbols().size());
  const AcDbObjectPointer<AcDbLine> line(low, AcDb::kForRead);
  EXPECT_NEAR(80, line->startPoint().distanceTo(AcGePoint3d() + far), 1e-6);
  expectRuns(high, AcGePoint3d() + far, AcGePoint3d(-1000, 200, 0) + far);
}

} // namespace
