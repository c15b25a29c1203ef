// Drags, driven by lines as the console drives them and by moves of the cursor as the desktop does.
#include "host/db/AcGiWorldDraw.h"
#include "host/ed/AcEdJig.h"
#include "host/ed/EdKeyPresses.h"
#include "host/ed/EdPrompts.h"
#include "tests/support/EditorFixture.h"

#include <numbers>

namespace {

// Drags the end of a line about.
class LineJig : public AcEdJig {
 public:
  explicit LineJig(const AcGePoint3d& start) : line(new AcDbLine(start, start)), current(start) {
    setDispPrompt(L"\n下一点或 [弧线(A)/回退(U)]:");
  }
  ~LineJig() override {
    if (!appended) delete line;
  }
  DragStatus sampler() override {
    setUserInputControls(controls);
    setKeywordList(L"L A U");
    AcGePoint3d point;
    const auto status = base ? acquirePoint(point, *base) : acquirePoint(point);
    if (status != kNormal) return status;
    if (point == current) return kNoChange;
    current = point;
    return kNormal;
  }
  bool update() override {
    ++updates;
    return line->setEndPoint(current) == Acad::eOk;
  }
  AcDbEntity* entity() const override { return line; }

  AcDbLine* line;
  AcGePoint3d current;
  std::optional<AcGePoint3d> base;
  int controls = kNullResponseAccepted | kAccept3dCoordinates;
  int updates = 0;
  bool appended = false;
};

class QuantityJig : public AcEdJig {
 public:
  enum class Asks { distance, angle, text } asks = Asks::distance;
  DragStatus sampler() override {
    switch (asks) {
    case Asks::distance:
      return acquireDist(number, AcGePoint3d(1, 1, 0));
    case Asks::angle:
      return acquireAngle(number, AcGePoint3d(1, 1, 0));
    case Asks::text:
      return acquireString(text);
    }
    return kCancel;
  }
  double number = -7;
  CString text;
};

struct CountingDraw : AcGiWorldDraw {
  void point(const AcGePoint3d&) override {}
  void polyline(std::span<const AcGePoint3d> points) override { ends.push_back(points.back()); }
  void circularArc(const AcGePoint3d&, double, const AcGeVector3d&, const AcGeVector3d&, double,
                   double) override {}
  void text(const AcGePoint3d&, const AcGeVector3d&, const AcGeVector3d&, double, double,
            const CString&) override {}
  void pushModelTransform(const AcGeMatrix3d&) override {}
  void popModelTransform() override {}
  std::vector<AcGePoint3d> ends;
};

using Jig = EditorFixture;

} // namespace

TEST_F(Jig, APickedPointEndsTheDrag) {
  LineJig jig({0, 0, 0});
  frontEnd.type({L"10,5,2"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  EXPECT_EQ(AcGePoint3d(10, 5, 2), jig.line->endPoint());
  EXPECT_EQ(1, jig.updates);
  EXPECT_EQ(AcGePoint3d(10, 5, 2), document->edit().lastPoint);
}

TEST_F(Jig, WithoutHeightsAPickStaysAtTheHeightOfTheLastPoint) {
  LineJig jig({0, 0, 0});
  jig.controls = AcEdJig::kNullResponseAccepted;
  document->edit().lastPoint = AcGePoint3d(0, 0, 3);
  frontEnd.type({L"10,5,2"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  EXPECT_EQ(AcGePoint3d(10, 5, 3), jig.current);
}

TEST_F(Jig, TypedMovesUpdateWithoutPicking) {
  LineJig jig({0, 0, 0});
  frontEnd.type({L"drag 1,1", L"drag 2,2", L"DRAG 2,2", L"9,9"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  EXPECT_EQ(3, jig.updates) << "a move to the same place changes nothing";
  EXPECT_EQ(AcGePoint3d(9, 9, 0), jig.current);
  EXPECT_TRUE(frontEnd.refusals.empty());
}

TEST_F(Jig, APickWhereTheCursorWentIsStillAPick) {
  LineJig jig({0, 0, 0});
  frontEnd.type({L"drag 4,4", L"4,4"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
}

TEST_F(Jig, APickThatChangesNothingAtAllIsNoChange) {
  LineJig jig({1, 1, 0});
  frontEnd.type({L"1,1"});
  EXPECT_EQ(AcEdJig::kNoChange, jig.drag());
  EXPECT_EQ(0, jig.updates);
}

TEST_F(Jig, KeywordsCountFromOneInTheOrderOfTheirList) {
  LineJig jig({0, 0, 0});
  frontEnd.type({L"u", L"L", L"_A"});
  EXPECT_EQ(AcEdJig::kKW3, jig.drag());
  EXPECT_EQ(AcEdJig::kKW1, jig.drag());
  EXPECT_EQ(AcEdJig::kKW2, jig.drag());
}

TEST_F(Jig, EnterAndEscapeAndTheEndOfTheInputEndIt) {
  LineJig jig({0, 0, 0});
  frontEnd.type({L"", L"*cancel*"});
  EXPECT_EQ(AcEdJig::kNull, jig.drag());
  EXPECT_EQ(AcEdJig::kCancel, jig.drag());
  EXPECT_EQ(AcEdJig::kCancel, jig.drag());
}

TEST_F(Jig, EnterIsRefusedWhereItIsNoAnswer) {
  LineJig jig({0, 0, 0});
  jig.controls = 0;
  frontEnd.type({L"", L"3,3"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  ASSERT_EQ(1u, frontEnd.refusals.size());
}

TEST_F(Jig, OtherTextIsRefusedAndAskedForAgainUnlessItIsWelcome) {
  LineJig jig({0, 0, 0});
  frontEnd.type({L"abc", L"3,3"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  ASSERT_EQ(1u, frontEnd.refusals.size());
  EXPECT_GE(frontEnd.refusals[0].expected.Find(L"L、A、U"), 0);
  jig.controls |= AcEdJig::kAcceptOtherInputString;
  frontEnd.type({L"abc"});
  EXPECT_EQ(AcEdJig::kOther, jig.drag());
  EXPECT_EQ(L"abc", jig.otherText());
}

TEST_F(Jig, AKeyThatAnswersByItselfComesBeforeTheKeywords) {
  LineJig jig({0, 0, 0});
  auto& presses = EdKeyPresses::instance();
  presses.start(L"A U");
  EXPECT_TRUE(presses.pressed().IsEmpty());
  frontEnd.type({L"a", L"l"});
  EXPECT_EQ(AcEdJig::kOther, jig.drag());
  EXPECT_EQ(L"a", presses.pressed());
  presses.start(L"A U");
  EXPECT_TRUE(presses.pressed().IsEmpty());
  EXPECT_EQ(AcEdJig::kKW1, jig.drag());
  EXPECT_TRUE(presses.pressed().IsEmpty());
  presses.end();
  frontEnd.type({L"a"});
  EXPECT_EQ(AcEdJig::kKW2, jig.drag());
}

TEST_F(Jig, DistancesAndAnglesCountFromTheirBase) {
  QuantityJig jig;
  frontEnd.type({L"4,5", L"2.5"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  EXPECT_EQ(5.0, jig.number);
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  EXPECT_EQ(2.5, jig.number);
  jig.asks = QuantityJig::Asks::angle;
  frontEnd.type({L"1,0", L"-90", L"x"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  EXPECT_DOUBLE_EQ(1.5 * std::numbers::pi, jig.number);
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  EXPECT_DOUBLE_EQ(1.5 * std::numbers::pi, jig.number);
  EXPECT_EQ(AcEdJig::kCancel, jig.drag()) << "refused, then the end of the input";
}

TEST_F(Jig, DistancesMayExcludeZeroAndNegatives) {
  QuantityJig jig;
  jig.setUserInputControls(AcEdJig::kNoZeroResponseAccepted | AcEdJig::kNoNegativeResponseAccepted);
  frontEnd.type({L"0", L"-1", L"1,1", L"8"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  EXPECT_EQ(8.0, jig.number);
  EXPECT_EQ(3u, frontEnd.refusals.size());
}

TEST_F(Jig, TextComesAsTyped) {
  QuantityJig jig;
  jig.asks = QuantityJig::Asks::text;
  frontEnd.type({L"二层 平面"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  EXPECT_EQ(L"二层 平面", jig.text);
}

TEST_F(Jig, WhatIsDraggedIsShownWhileItIs) {
  LineJig jig({0, 0, 0});
  jig.base = AcGePoint3d(7, 7, 0);
  CountingDraw draw;
  frontEnd.onTransients = [&] { session().transients().draw(draw); };
  frontEnd.beforeLine = [&] {
    // The mouse moves before the user answers.
    EXPECT_TRUE(session().prompts().cursorMoved({2, 3, 0}));
    EXPECT_EQ(AcGePoint3d(7, 7, 0), session().prompts().current().base);
    EXPECT_FALSE(session().prompts().takesKey(L'A'));
  };
  frontEnd.type({L"5,5"});
  EXPECT_EQ(AcEdJig::kNormal, jig.drag());
  ASSERT_EQ(3u, draw.ends.size()) << "shown, moved, picked";
  EXPECT_EQ(AcGePoint3d(2, 3, 0), draw.ends[1]);
  EXPECT_EQ(AcGePoint3d(5, 5, 0), draw.ends[2]);
  EXPECT_TRUE(session().transients().isEmpty());
  EXPECT_EQ(EdPromptState::Wants::command, session().prompts().current().wants);
}

TEST_F(Jig, AppendPutsTheEntityIntoTheCurrentSpace) {
  LineJig jig({0, 0, 0});
  frontEnd.type({L"5,5"});
  jig.drag();
  const auto id = jig.append();
  jig.appended = !id.isNull();
  ASSERT_FALSE(id.isNull());
  EXPECT_EQ(1u, entityCount());
}

TEST_F(Jig, EscapeLeavesWhatTheCommandDrewBefore) {
  define(L"DRAWANDDRAG", [] {
    addLine({0, 0, 0}, {1, 1, 0});
    LineJig jig({0, 0, 0});
    jig.drag();
  });
  run(L"DRAWANDDRAG", {L"*cancel*"});
  EXPECT_EQ(1u, entityCount());
}

TEST_F(Jig, ASamplerThatAsksForNothingEndsItself) {
  AcEdJig jig;
  frontEnd.type({L"1,1"});
  EXPECT_EQ(AcEdJig::kCancel, jig.drag());
}

TEST_F(Jig, AtAPointPromptAMoveShowsItsPreview) {
  std::vector<AcGePoint3d> shown;
  ed::Question question{L"点:", {}, 0, {}};
  question.preview = [&](AcGiWorldDraw&, const AcGePoint3d& cursor) { shown.push_back(cursor); };
  CountingDraw draw;
  frontEnd.onTransients = [&] { session().transients().draw(draw); };
  frontEnd.type({L"drag 3,4", L"drag 5,6", L"7,8"});
  const auto answer = ed::AskPoint(question);
  EXPECT_EQ(AcGePoint3d(7, 8, 0), answer.point);
  ASSERT_GE(shown.size(), 3u);
  EXPECT_EQ(AcGePoint3d(3, 4, 0), shown[1]);
  EXPECT_EQ(AcGePoint3d(5, 6, 0), shown[2]);
  EXPECT_TRUE(frontEnd.refusals.empty());
}
