// Asking for pipes: what can be selected, and what is said.
#include "tests/plugin/tools/crossings/CrossingsFixture.h"

namespace {

class CrossingSelection : public CrossingsFixture {
 protected:
  CrossingSelection() {
    s_bends = ZPKwCl(true, kRadius);
    define(L"BENDS", [] { s_bends.Go(); });
  }
  void go(std::initializer_list<const wchar_t*> answers) { run(L"BENDS", answers); }
  void limitTo(std::initializer_list<const wchar_t*> layers) {
    CStringArray names;
    for (const auto* layer : layers) names.Add(layer);
    s_bends.SetFiltrationLayer(names);
  }
  void corner(const AcGePoint3d& at, const wchar_t* layer) {
    pipe(at, at + AcGeVector3d(1000, 0, 0), 3.0, layer);
    pipe(at, at + AcGeVector3d(0, 1000, 0), 2.0, layer);
  }
  static constexpr const wchar_t* kNone = L"没有符合生成扣弯条件的管线!";

  static inline ZPKwCl s_bends;
};

TEST_F(CrossingSelection, MakesTheBendsOfWhatIsSelected) {
  corner({0, 0, 0}, L"0");
  go({L"all", L""});
  EXPECT_EQ(1u, symbols().size());
  EXPECT_FALSE(frontEnd.said(kNone));
}

TEST_F(CrossingSelection, AsksForMains) {
  corner({0, 0, 0}, L"0");
  go({L"all", L""});
  ASSERT_FALSE(frontEnd.prompts.empty());
  EXPECT_EQ(CString(L"请选择干管:"), frontEnd.prompts.front());
}

TEST_F(CrossingSelection, SaysSoWhenNothingCameOfIt) {
  pipe({0, 0, 0}, {1000, 0, 0}, 3.0);
  pipe({0, 0, 0}, {0, 1000, 0}, 3.0);
  go({L"all", L""});
  EXPECT_TRUE(frontEnd.said(L"\n没有符合生成扣弯条件的管线!"));
}

TEST_F(CrossingSelection, SaysNothingWhenNothingWasSelected) {
  corner({0, 0, 0}, L"0");
  go({L""});
  EXPECT_TRUE(symbols().empty());
  EXPECT_FALSE(frontEnd.said(kNone));
}

TEST_F(CrossingSelection, SaysNothingWhenItWasCancelled) {
  corner({0, 0, 0}, L"0");
  go({L"all", L"*cancel*"});
  EXPECT_TRUE(symbols().empty());
  EXPECT_FALSE(frontEnd.said(kNone));
}

TEST_F(CrossingSelection, SaysSoAgainInARunThatMadeNothingAfterOneThatDid) {
  corner({0, 0, 0}, L"0");
  go({L"all", L""});
  EXPECT_FALSE(frontEnd.said(kNone));
  s_bends = ZPKwCl(true, kRadius);
  pipe({5000, 0, 0}, {6000, 0, 0}, 3.0);
  go({L"l", L""});
  EXPECT_TRUE(frontEnd.said(kNone));
}

TEST_F(CrossingSelection, TakesLinesPolylinesAndArcsAlone) {
  add(new AcDbCircle({0, 0, 0}, {0, 0, 1}, 10));
  const auto high = pipe({0, 0, 0}, {1000, 0, 0}, 3.0);
  polyline({{0, 0}, {0, 1000}}, 2.0);
  auto* arc = new AcDbArc({1000, 500, 0}, {0, 0, 1}, 500, -std::numbers::pi / 2, 0);
  withElevation(add(arc), 1.0);
  go({L"all", L""});
  EXPECT_EQ(2u, symbols().size());
  EXPECT_EQ(1u, all<AcDbCircle>().size());
  expectRuns(high, {0, 0, 0}, {1000, 0, 0});
}

TEST_F(CrossingSelection, IsLimitedToTheLayers) {
  for (const auto* layer : {L"供水", L"回水", L"其他"}) addLayer(layer);
  corner({0, 0, 0}, L"供水");
  corner({5000, 0, 0}, L"回水");
  corner({10000, 0, 0}, L"其他");
  limitTo({L"供水", L"回水"});
  go({L"all", L""});
  ASSERT_EQ(2u, symbols().size());
  EXPECT_EQ(0, positionOf(symbols()[0]).x);
  EXPECT_EQ(5000, positionOf(symbols()[1]).x);
}

TEST_F(CrossingSelection, ALayerLimitDoesNotHideAnOldSymbolOfAnotherLayer) {
  addLayer(L"供水");
  corner({0, 0, 0}, L"供水");
  limitTo({L"供水"});
  go({L"all", L""});
  const auto old = onlySymbol();
  s_bends = ZPKwCl(true, kRadius);
  limitTo({L"供水"});
  go({L"all", L""});
  EXPECT_TRUE(old.isErased());
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(CrossingSelection, ABlockReferenceThatIsNoSymbolCantBeSelected) {
  corner({0, 0, 0}, L"0");
  const auto valve = insert(L"阀门", {}, {0, 0, 0});
  go({L"all", L""});
  EXPECT_FALSE(valve.isErased());
}

TEST_F(CrossingSelection, OneUndoTakesBackAWholeRun) {
  define(L"DRAW", [] {
    pipe({-1000, 0, 0}, {3000, 0, 0}, 3.0);
    pipe({0, 0, 0}, {0, 1000, 0}, 2.0);
    pipe({2000, 0, 0}, {2000, 1000, 0}, 4.0);
  });
  run(L"DRAW");
  const auto main = all<AcDbLine>().front();
  go({L"all", L""});
  EXPECT_EQ(2u, symbols().size());
  EXPECT_EQ(5u, all<AcDbLine>().size());
  ASSERT_EQ(Acad::eOk, database().undo().undo());
  EXPECT_TRUE(symbols().empty());
  EXPECT_EQ(3u, all<AcDbLine>().size());
  expectRuns(main, {-1000, 0, 0}, {3000, 0, 0});
  expectSound();
  ASSERT_EQ(Acad::eOk, database().undo().redo());
  EXPECT_EQ(2u, symbols().size());
  expectRuns(main, {-1000, 0, 0}, {0, 0, 0});
  expectSound();
}

TEST_F(CrossingSelection, WithARadiusThatIsNoneSaysThatNothingCameOfIt) {
  corner({0, 0, 0}, L"0");
  s_bends = ZPKwCl(true, 0);
  go({L"all", L""});
  EXPECT_TRUE(symbols().empty());
  EXPECT_TRUE(frontEnd.said(kNone));
}

} // namespace
