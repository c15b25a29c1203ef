// The length of a pipe: what was set, else what the curve measures.
#include <numbers>

#include "tests/plugin/pipes/attributes/PipeFixture.h"

namespace {

class PipeLength : public PipeFixture {
 protected:
  // Metres, or -1 where there is none.
  static double LengthOf(const AcDbObjectId& id) {
    double metres = -1;
    const bool found = CZPMainPipe(id).GetLength(metres);
    EXPECT_EQ(found, metres != -1);
    return metres;
  }
};

TEST_F(PipeLength, IsThatOfTheCurveInMetres) {
  EXPECT_DOUBLE_EQ(LengthOf(line), 0.1);
  EXPECT_DOUBLE_EQ(LengthOf(drawing.Append(new AcDbLine({0, 0, 0}, {3000, 4000, 12000}))), 13);
  EXPECT_DOUBLE_EQ(LengthOf(drawing.Append(new AcDbCircle({5, 5, 0}, {0, 0, 1}, 500))), std::numbers::pi);
  EXPECT_DOUBLE_EQ(LengthOf(drawing.Append(new AcDbArc({0, 0, 0}, {0, 0, 1}, 1000, 0, std::numbers::pi / 2))),
                   std::numbers::pi / 2);
}

TEST_F(PipeLength, OfAPolylineCountsItsBulgesAndWhatClosesIt) {
  auto* polyline = new AcDbPolyline;
  polyline->addVertexAt(0, {0, 0});
  polyline->addVertexAt(1, {3000, 0}, 1); // a half circle of radius 1000
  polyline->addVertexAt(2, {3000, 2000});
  const AcDbObjectId id = drawing.Append(polyline);
  EXPECT_DOUBLE_EQ(LengthOf(id), 3 + std::numbers::pi);
  {
    const AcDbObjectPointer<AcDbPolyline> open(id, AcDb::kForWrite);
    open->setClosed(true);
  }
  EXPECT_DOUBLE_EQ(LengthOf(id), 3 + std::numbers::pi + std::sqrt(13.0));
}

TEST_F(PipeLength, ThatWasSetGoesBeforeTheGeometryAlsoWhenThatHasChanged) {
  CZPMainPipe pipe(line);
  EXPECT_TRUE(pipe.SetLength(12.3456789));
  EXPECT_EQ(LengthOf(line), 12.34568);
  {
    const AcDbObjectPointer<AcDbLine> open(line, AcDb::kForWrite);
    open->setEndPoint({9000, 0, 0});
  }
  EXPECT_EQ(LengthOf(line), 12.34568);
}

TEST_F(PipeLength, IsNotWrittenByMeasuring) {
  LengthOf(line);
  EXPECT_EQ(Stored(L"长度"), L"(none)");
}

TEST_F(PipeLength, IsZeroForALineWithoutOne) {
  EXPECT_EQ(LengthOf(drawing.Append(new AcDbLine({5, 5, 5}, {5, 5, 5}))), 0);
}

TEST_F(PipeLength, OfWhatIsNoCurveIsOnlyWhatWasSet) {
  const AcDbObjectId point = drawing.Append(new AcDbPoint);
  EXPECT_EQ(LengthOf(point), -1);
  EXPECT_EQ(LengthOf(AcDbObjectId::kNull), -1);
  EXPECT_EQ(LengthOf(drawing.Append(new AcDbPolyline)), -1); // without a vertex there is no end
  CZPMainPipe(point).SetLength(2.5);
  EXPECT_EQ(LengthOf(point), 2.5);
}

TEST_F(PipeLength, CannotBeReadWhileTheCurveIsOpenForWrite) {
  const AcDbObjectPointer<AcDbLine> open(line, AcDb::kForWrite);
  EXPECT_EQ(LengthOf(line), -1);
}

} // namespace
