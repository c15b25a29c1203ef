// Measuring, with the user's answers typed.
#include "host/db/AcDbObjectPointer.h"
#include "plugin/tools/CZPMeasureJig.h"
#include "plugin/tools/Measuring.h"
#include "tests/support/EditorFixture.h"

#include <numbers>

namespace {

using std::numbers::pi;

class Measure : public EditorFixture {
 protected:
  // Runs the conversation under a command, as siblings do.
  double length(std::initializer_list<const wchar_t*> lines) {
    frontEnd.type(lines);
    return ZP::GetLengthFromDwg();
  }
  double area(std::initializer_list<const wchar_t*> lines) {
    frontEnd.type(lines);
    return ZP::GetAreaFromDwg();
  }
  void setMetres() { ASSERT_EQ(SystemVariables::Result::ok, SystemVariables::set(L"INSUNITS", 6L)); }
};

} // namespace

TEST_F(Measure, ALengthIsThatOfThePathInMetres) {
  EXPECT_DOUBLE_EQ(7.0, length({L"0,0", L"3000,0", L"3000,4000", L""}));
  EXPECT_EQ(0u, entityCount()) << "nothing that was traced stays";
}

TEST_F(Measure, WhileTracingTheFinishedPiecesStandInRed) {
  CZPMeasureJig jig;
  frontEnd.type({L"0,0", L"3000,0", L"3000,4000", L""});
  jig.MeasureLength();
  ASSERT_EQ(2, jig.ObjectIds.length());
  EXPECT_EQ(2u, entityCount());
  EXPECT_EQ(1, AcDbEntity::cast(jig.ObjectIds[1].object())->colorIndex());
  EXPECT_EQ(3, jig.Points.length());
}

TEST_F(Measure, TheUnitOfTheDrawingDoesNotMatterToALength) {
  setMetres();
  EXPECT_DOUBLE_EQ(3.0, length({L"0,0", L"3000,0", L""}));
}

TEST_F(Measure, AnAreaIsClosedByTheRubberBand) {
  EXPECT_DOUBLE_EQ(6.0, area({L"0,0", L"3000,0", L"3000,4000", L""}));
  EXPECT_EQ(0u, entityCount());
}

TEST_F(Measure, AnAreaOfADrawingInMetresIsTakenAsItIs) {
  setMetres();
  EXPECT_DOUBLE_EQ(6.0, area({L"0,0", L"3,0", L"3,4", L""}));
}

TEST_F(Measure, AClockwisePathHasTheSameArea) {
  EXPECT_DOUBLE_EQ(6.0, area({L"0,0", L"3000,4000", L"3000,0", L""}));
}

TEST_F(Measure, EscapeEndsThePathAsEnterDoes) {
  EXPECT_DOUBLE_EQ(3.0, length({L"0,0", L"3000,0", L"*cancel*"}));
  EXPECT_DOUBLE_EQ(6.0, area({L"0,0", L"3000,0", L"3000,4000", L"*cancel*"}));
  EXPECT_DOUBLE_EQ(3.0, length({L"0,0", L"3000,0"})) << "the end of the input as well";
}

TEST_F(Measure, EscapeAtTheFirstPromptMeasuresNothing) {
  AcGePoint3d first(1, 2, 3);
  AcGePoint3d last(4, 5, 6);
  frontEnd.type({L"*cancel*"});
  EXPECT_EQ(0.0, ZP::GetLengthFromDwg(first, last));
  EXPECT_EQ(AcGePoint3d(1, 2, 3), first);
  EXPECT_EQ(AcGePoint3d(4, 5, 6), last);
  EXPECT_EQ(0.0, area({L""}));
  EXPECT_EQ(0u, entityCount());
}

TEST_F(Measure, TheEndsOfThePathAreGiven) {
  AcGePoint3d first;
  AcGePoint3d last;
  frontEnd.type({L"1000,0", L"3000,0", L"3000,1000,500", L""});
  ZP::GetLengthFromDwg(first, last);
  EXPECT_EQ(AcGePoint3d(1000, 0, 0), first);
  EXPECT_EQ(AcGePoint3d(3000, 1000, 500), last);
}

TEST_F(Measure, AReferencePointMayComeFirst) {
  EXPECT_DOUBLE_EQ(1.0, length({L"R", L"500,500", L"@500,500", L"@1000,0", L""}));
  EXPECT_EQ(0.0, length({L"r", L"500,500", L"*cancel*"}));
}

TEST_F(Measure, UndoTakesTheLastPieceBack) {
  EXPECT_DOUBLE_EQ(2.0, length({L"0,0", L"1000,0", L"1000,9000", L"U", L"2000,0", L""}));
  EXPECT_EQ(0u, entityCount());
}

TEST_F(Measure, UndoWithNothingFinishedDoesNothing) {
  EXPECT_DOUBLE_EQ(1.0, length({L"0,0", L"u", L"U", L"1000,0", L""}));
}

TEST_F(Measure, AnArcGoesThroughAPointOnIt) {
  CZPMeasureJig jig;
  frontEnd.type({L"0,0", L"A", L"2000,0", L"1000,1000", L""});
  EXPECT_NEAR(pi, jig.MeasureLength(), 1e-9);
  ASSERT_EQ(1, jig.ObjectIds.length());
  const auto* arc = AcDbArc::cast(jig.ObjectIds[0].object());
  ASSERT_NE(nullptr, arc);
  EXPECT_NEAR(1000, arc->radius(), 1e-9);
  EXPECT_EQ(L"下一点或 [直线(L)/回退(U)]:", frontEnd.prompts.back());
}

TEST_F(Measure, AClockwiseArcHasANegativeSweep) {
  CZPMeasureJig jig;
  frontEnd.type({L"0,0", L"A", L"2000,0", L"1000,1000", L""});
  jig.MeasureLength();
  EXPECT_NEAR(-pi, jig.GetOutLine().GetCentralAngle(0), 1e-12);
  CZPMeasureJig other;
  frontEnd.type({L"0,0", L"A", L"2000,0", L"1000,-1000", L""});
  other.MeasureLength();
  EXPECT_NEAR(pi, other.GetOutLine().GetCentralAngle(0), 1e-12);
}

TEST_F(Measure, ArcsFollowEachOtherUntilALineIsAskedFor) {
  // Two half circles of radius 1 m, then 3 m straight.
  EXPECT_NEAR(
      2 * pi + 3,
      length({L"0,0", L"A", L"2000,0", L"1000,1000", L"4000,0", L"3000,1000", L"L", L"4000,3000", L""}),
      1e-9);
}

TEST_F(Measure, AnAreaCountsWhatArcsEnclose) {
  // A half disc of radius 1 m.
  EXPECT_NEAR(pi / 2, area({L"0,0", L"A", L"2000,0", L"1000,1000", L""}), 1e-9);
}

TEST_F(Measure, TheRightPromptsAreShown) {
  length({L"0,0", L"A", L"2000,0", L"1000,1000", L"L", L""});
  const std::vector<CString> expected{L"起点或 [参考点(R)]<退出>",    L"下一点或 [弧线(A)/回退(U)]:",
                                      L"弧线终点或 [直墙(L)]:",       L"点取弧上任意点<取消>:",
                                      L"下一点或 [直线(L)/回退(U)]:", L"下一点或 [弧线(A)/回退(U)]:"};
  EXPECT_EQ(expected, frontEnd.prompts);
}

TEST_F(Measure, APointEqualToTheLastAddsNothing) {
  CZPMeasureJig jig;
  frontEnd.type({L"0,0", L"0,0", L"1000,0", L"1000,0", L""});
  EXPECT_DOUBLE_EQ(1.0, jig.MeasureLength());
  EXPECT_EQ(1, jig.ObjectIds.length());
}

TEST_F(Measure, AMoveOfTheCursorChangesThePieceAndPicksNothing) {
  CZPMeasureJig jig;
  frontEnd.type({L"0,0", L"drag 500,500", L"1000,0", L"drag 9,9", L""});
  EXPECT_DOUBLE_EQ(1.0, jig.MeasureLength());
  EXPECT_EQ(AcGePoint3d(9, 9, 0), AcDbLine::cast(jig.Entity)->endPoint()) << "still dragged, not counted";
}

TEST_F(Measure, PointsOfAnArcOnALineLeaveTheArcAsItWas) {
  EXPECT_NO_THROW(length({L"0,0", L"A", L"2000,0", L"1000,0", L""}));
  EXPECT_EQ(0u, entityCount());
}

TEST_F(Measure, WithoutADrawingNothingIsMeasured) {
  acDocManagerPtr()->closeAll();
  EXPECT_EQ(0.0, length({L"0,0", L"1,0", L""}));
}

TEST_F(Measure, APathMayHaveThousandsOfPieces) {
  CZPMeasureJig jig;
  frontEnd.type({L"0,0"});
  for (int i = 1; i <= 2000; ++i) {
    CString point;
    point.Format(L"%d,%d", i * 1000, (i % 2) * 10);
    frontEnd.lines.push_back(point);
  }
  frontEnd.lines.push_back(L"");
  EXPECT_NEAR(2000.1, jig.MeasureLength(), 0.01);
}
