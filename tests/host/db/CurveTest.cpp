#include "tests/host/db/DrawingFixture.h"

#include "host/db/AcDbText.h"
#include "host/ge/AcGePlane.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

using Points = std::vector<AcGePoint3d>;

void expectNear(const AcGePoint3d& actual, const AcGePoint3d& wanted) {
  EXPECT_NEAR(actual.x, wanted.x, 1e-9);
  EXPECT_NEAR(actual.y, wanted.y, 1e-9);
  EXPECT_NEAR(actual.z, wanted.z, 1e-9);
}

AcGePoint3d startOf(const AcDbCurve& curve) {
  AcGePoint3d point;
  EXPECT_EQ(curve.getStartPoint(point), Acad::eOk);
  return point;
}

AcGePoint3d endOf(const AcDbCurve& curve) {
  AcGePoint3d point;
  EXPECT_EQ(curve.getEndPoint(point), Acad::eOk);
  return point;
}

double lengthOf(const AcDbCurve& curve) {
  double parameter = 0;
  double length = -1;
  EXPECT_EQ(curve.getEndParam(parameter), Acad::eOk);
  EXPECT_EQ(curve.getDistAtParam(parameter, length), Acad::eOk);
  return length;
}

// From 0,0 to 10,0 straight, then a half circle down to 20,0.
void fillPolyline(AcDbPolyline& polyline) {
  polyline.addVertexAt(0, AcGePoint2d(0, 0));
  polyline.addVertexAt(1, AcGePoint2d(10, 0), 1);
  polyline.addVertexAt(2, AcGePoint2d(20, 0));
}

Points meet(const AcDbEntity& a, const AcDbEntity& b, AcDb::Intersect type = AcDb::kOnBothOperands) {
  Points points;
  EXPECT_EQ(a.intersectWith(&b, type, points), Acad::eOk);
  return points;
}

} // namespace

using Curves = Drawing;

TEST(CurveEnds, OfEveryKind) {
  expectNear(endOf(AcDbLine({1, 2, 3}, {4, 5, 6})), {4, 5, 6});
  const AcDbArc arc({0, 0, 0}, {0, 0, 1}, 10, 0, kPi / 2);
  expectNear(startOf(arc), {10, 0, 0});
  expectNear(endOf(arc), {0, 10, 0});
  const AcDbCircle circle({5, 0, 0}, {0, 0, 1}, 2);
  expectNear(startOf(circle), {7, 0, 0});
  expectNear(endOf(circle), {7, 0, 0});
  AcDbPolyline polyline;
  fillPolyline(polyline);
  expectNear(endOf(polyline), {20, 0, 0});
  polyline.setClosed(true);
  expectNear(endOf(polyline), {0, 0, 0});
}

TEST(CurveEnds, APolylineWithoutVerticesHasNone) {
  AcGePoint3d point(7, 7, 7);
  EXPECT_EQ(AcDbPolyline().getStartPoint(point), Acad::eDegenerateGeometry);
  EXPECT_EQ(AcDbPolyline().getEndPoint(point), Acad::eDegenerateGeometry);
  expectNear(point, {7, 7, 7});
}

TEST(CurveEnds, StandAtTheVeryPointThatIntersectionsReturnFarFromTheOrigin) {
  AcDbPolyline polyline;
  polyline.addVertexAt(0, AcGePoint2d(4.1e7 + 0.1, 3.2e7 + 0.7), 0.3);
  polyline.addVertexAt(1, AcGePoint2d(4.1e7 + 10.3, 3.2e7 + 0.9));
  const AcDbLine line(endOf(polyline), AcGePoint3d(4.1e7 + 20, 3.2e7 + 30, 0));
  const auto points = meet(polyline, line);
  ASSERT_EQ(points.size(), 1u);
  EXPECT_TRUE(points[0].isEqualTo(endOf(polyline)));
}

TEST(CurveParameters, LengthsOfEveryKind) {
  EXPECT_DOUBLE_EQ(lengthOf(AcDbLine({0, 0, 0}, {3, 4, 0})), 5);
  EXPECT_DOUBLE_EQ(lengthOf(AcDbArc({0, 0, 0}, {0, 0, 1}, 2, 0, kPi)), 2 * kPi);
  EXPECT_DOUBLE_EQ(lengthOf(AcDbCircle({0, 0, 0}, {0, 0, 1}, 2)), 4 * kPi);
  AcDbPolyline polyline;
  fillPolyline(polyline);
  EXPECT_NEAR(lengthOf(polyline), 10 + 5 * kPi, 1e-12);
}

TEST(CurveParameters, DistancesAndPointsAnswerEachOther) {
  AcDbPolyline polyline;
  fillPolyline(polyline);
  AcGePoint3d point;
  ASSERT_EQ(polyline.getPointAtDist(4, point), Acad::eOk);
  expectNear(point, {4, 0, 0});
  double distance = 0;
  ASSERT_EQ(polyline.getDistAtPoint({15, -5, 0}, distance), Acad::eOk);
  EXPECT_NEAR(distance, 10 + 2.5 * kPi, 1e-9);
  double parameter = 0;
  ASSERT_EQ(polyline.getParamAtPoint({15, -5, 0}, parameter), Acad::eOk);
  EXPECT_NEAR(parameter, 1.5, 1e-12);
  ASSERT_EQ(polyline.getParamAtDist(5, parameter), Acad::eOk);
  EXPECT_DOUBLE_EQ(parameter, 0.5);
  ASSERT_EQ(polyline.getPointAtParam(2, point), Acad::eOk);
  expectNear(point, {20, 0, 0});
  AcGeVector3d along;
  ASSERT_EQ(polyline.getFirstDeriv(AcGePoint3d(4, 0, 0), along), Acad::eOk);
  EXPECT_NEAR(along.y, 0, 1e-12);
}

TEST(CurveParameters, BeyondTheEndsIsOutOfRangeAndLeavesTheAnswer) {
  const AcDbLine line({0, 0, 0}, {10, 0, 0});
  AcGePoint3d point(7, 7, 7);
  EXPECT_EQ(line.getPointAtDist(10.1, point), Acad::eOutOfRange);
  EXPECT_EQ(line.getPointAtDist(-0.1, point), Acad::eOutOfRange);
  EXPECT_EQ(line.getPointAtParam(11, point), Acad::eOutOfRange);
  expectNear(point, {7, 7, 7});
  double distance = 42;
  EXPECT_EQ(line.getDistAtPoint({5, 1, 0}, distance), Acad::ePointNotOnEntity);
  EXPECT_EQ(distance, 42);
}

TEST(CurveClosest, WithAndWithoutExtension) {
  const AcDbLine line({0, 0, 0}, {10, 0, 0});
  AcGePoint3d on;
  ASSERT_EQ(line.getClosestPointTo({15, 3, 0}, on), Acad::eOk);
  expectNear(on, {10, 0, 0});
  ASSERT_EQ(line.getClosestPointTo({15, 3, 0}, on, true), Acad::eOk);
  expectNear(on, {15, 0, 0});
  const AcDbArc arc({0, 0, 0}, {0, 0, 1}, 10, 0, kPi / 2);
  ASSERT_EQ(arc.getClosestPointTo({-20, 0, 0}, on, true), Acad::eOk);
  expectNear(on, {-10, 0, 0});
}

TEST(CurveIntersections, OnBothOperandsAndExtended) {
  const AcDbLine across({5, -5, 0}, {5, 5, 0});
  const AcDbLine along({0, 0, 0}, {10, 0, 0});
  const AcDbLine shorter({0, 0, 0}, {4, 0, 0});
  ASSERT_EQ(meet(across, along).size(), 1u);
  expectNear(meet(across, along)[0], {5, 0, 0});
  EXPECT_TRUE(meet(across, shorter).empty());
  EXPECT_TRUE(meet(across, shorter, AcDb::kExtendThis).empty());
  EXPECT_EQ(meet(across, shorter, AcDb::kExtendArg).size(), 1u);
  EXPECT_EQ(meet(shorter, across, AcDb::kExtendThis).size(), 1u);
  EXPECT_EQ(meet(shorter, AcDbLine({5, 1, 0}, {5, 5, 0}), AcDb::kExtendBoth).size(), 1u);
}

TEST(CurveIntersections, APointLiesOnACurveOrOnItsExtension) {
  const AcDbLine line({0, 0, 0}, {10, 0, 0});
  EXPECT_EQ(meet(line, AcDbPoint({4, 0, 0})).size(), 1u);
  EXPECT_TRUE(meet(line, AcDbPoint({12, 0, 0})).empty());
  EXPECT_EQ(meet(line, AcDbPoint({12, 0, 0}), AcDb::kExtendThis).size(), 1u);
  EXPECT_EQ(meet(AcDbPoint({12, 0, 0}), line, AcDb::kExtendArg).size(), 1u);
  EXPECT_TRUE(meet(line, AcDbPoint({12, 0.1, 0}), AcDb::kExtendThis).empty());
  EXPECT_EQ(meet(AcDbPoint({1, 1, 0}), AcDbPoint({1, 1, 0})).size(), 1u);
}

TEST(CurveIntersections, AreAppendedToWhatIsThere) {
  Points points{{9, 9, 9}};
  const AcDbCircle circle({0, 0, 0}, {0, 0, 1}, 5);
  ASSERT_EQ(
      circle.intersectWith(std::make_unique<AcDbLine>(AcGePoint3d(-9, 0, 0), AcGePoint3d(9, 0, 0)).get(),
                           AcDb::kOnBothOperands, points),
      Acad::eOk);
  EXPECT_EQ(points.size(), 3u);
}

TEST(CurveIntersections, WhatHasNoGeometryIsNotApplicable) {
  Points points;
  const AcDbLine line({0, 0, 0}, {10, 0, 0});
  const AcDbText text;
  EXPECT_EQ(line.intersectWith(&text, AcDb::kOnBothOperands, points), Acad::eNotApplicable);
  EXPECT_EQ(text.intersectWith(&line, AcDb::kOnBothOperands, points), Acad::eNotApplicable);
  EXPECT_EQ(line.intersectWith(nullptr, AcDb::kOnBothOperands, points), Acad::eNullObjectPointer);
  EXPECT_EQ(line.intersectWith(&line, static_cast<AcDb::Intersect>(7), points), Acad::eInvalidInput);
}

TEST_F(Curves, AreSplitIntoPartsThatKeepPropertiesAndExtendedData) {
  db.registerApplication(L"管材");
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  line->setColorIndex(3);
  line->setXData(ResbufBuilder().text(1001, L"管材").text(1000, L"镀锌钢管").chain());
  std::vector<AcDbCurve*> parts;
  ASSERT_EQ(line->getSplitCurves(Points{{0, 7, 0}, {0, 2, 0}}, parts), Acad::eOk);
  ASSERT_EQ(parts.size(), 3u);
  expectNear(endOf(*parts[0]), {0, 2, 0});
  expectNear(endOf(*parts[1]), {0, 7, 0});
  expectNear(endOf(*parts[2]), {0, 10, 0});
  for (AcDbCurve* part : parts) {
    EXPECT_EQ(part->colorIndex(), 3);
    EXPECT_EQ(part->database(), nullptr);
    EXPECT_TRUE(ResbufPtr(part->xData(L"管材")));
    delete part;
  }
}

TEST_F(Curves, ACircleIsSplitIntoArcs) {
  const auto layer = addLayer(L"圆");
  AcDbCircle circle({0, 0, 0}, {0, 0, 1}, 5);
  circle.setLayer(layer);
  std::vector<AcDbCurve*> parts;
  ASSERT_EQ(circle.getSplitCurves(std::vector<double>{0, kPi}, parts), Acad::eOk);
  ASSERT_EQ(parts.size(), 2u);
  for (AcDbCurve* part : parts) {
    EXPECT_TRUE(AcDbArc::cast(part));
    EXPECT_EQ(part->layerId(), layer);
    EXPECT_NEAR(lengthOf(*part), 5 * kPi, 1e-9);
    delete part;
  }
}

TEST(CurveSplits, ARefusedCutGivesNothing) {
  const AcDbLine line({0, 0, 0}, {10, 0, 0});
  std::vector<AcDbCurve*> parts;
  EXPECT_EQ(line.getSplitCurves(std::vector<double>{5, 11}, parts), Acad::eOutOfRange);
  EXPECT_EQ(line.getSplitCurves(Points{{5, 1, 0}}, parts), Acad::ePointNotOnEntity);
  EXPECT_TRUE(parts.empty());
}

TEST(CurveEdits, EndsMoveAlongTheCurveAndItsExtension) {
  AcDbLine line({0, 0, 0}, {10, 0, 0});
  EXPECT_EQ(line.moveEndTo({14, 0, 0}), Acad::eOk);
  EXPECT_EQ(line.extend(true, {3, 0, 0}), Acad::eOk);
  expectNear(line.startPoint(), {3, 0, 0});
  expectNear(line.endPoint(), {14, 0, 0});
  EXPECT_EQ(line.moveStartTo({15, 0, 0}), Acad::eOutOfRange);
  EXPECT_EQ(line.moveStartTo({5, 1, 0}), Acad::ePointNotOnEntity);
  AcDbArc arc({0, 0, 0}, {0, 0, 1}, 10, 0, kPi / 2);
  EXPECT_EQ(arc.moveEndTo({-10, 0, 0}), Acad::eOk);
  EXPECT_NEAR(arc.endAngle(), kPi, 1e-12);
  AcDbCircle circle({0, 0, 0}, {0, 0, 1}, 10);
  EXPECT_EQ(circle.moveEndTo({-10, 0, 0}), Acad::eNotApplicable);
}

TEST(CurveEdits, APolylineCutInItsArcKeepsTheRestAndItsWidths) {
  AcDbPolyline polyline;
  fillPolyline(polyline);
  polyline.setWidthsAt(1, 0.5, 0.7);
  ASSERT_EQ(polyline.moveEndTo({15, -5, 0}), Acad::eOk);
  EXPECT_EQ(polyline.numVerts(), 3u);
  expectNear(endOf(polyline), {15, -5, 0});
  EXPECT_NEAR(lengthOf(polyline), 10 + 2.5 * kPi, 1e-9);
  double start = 0;
  double end = 0;
  polyline.getWidthsAt(1, start, end);
  EXPECT_EQ(start, 0.5);
  EXPECT_EQ(end, 0.7);
}

TEST(CurveEdits, ReversingKeepsTheShape) {
  AcDbPolyline polyline;
  fillPolyline(polyline);
  polyline.setWidthsAt(1, 0.5, 0.7);
  const double length = lengthOf(polyline);
  ASSERT_EQ(polyline.reverseCurve(), Acad::eOk);
  expectNear(startOf(polyline), {20, 0, 0});
  EXPECT_NEAR(lengthOf(polyline), length, 1e-12);
  AcGePoint3d middle;
  polyline.getPointAtParam(0.5, middle);
  expectNear(middle, {15, -5, 0});
  double start = 0;
  double end = 0;
  polyline.getWidthsAt(0, start, end);
  EXPECT_EQ(start, 0.7);
  EXPECT_EQ(end, 0.5);
  AcDbArc arc({0, 0, 0}, {0, 0, 1}, 10, 0, kPi / 2);
  ASSERT_EQ(arc.reverseCurve(), Acad::eOk);
  expectNear(startOf(arc), {0, 10, 0});
  expectNear(endOf(arc), {10, 0, 0});
  AcDbLine line({0, 0, 0}, {3, 0, 0});
  ASSERT_EQ(line.reverseCurve(), Acad::eOk);
  expectNear(line.startPoint(), {3, 0, 0});
}

TEST(CurveEdits, AClosedPolylineRunsBackThroughTheSamePoints) {
  AcDbPolyline polyline;
  fillPolyline(polyline);
  polyline.setBulgeAt(2, 0.25);
  polyline.setClosed(true);
  double area = 0;
  polyline.getArea(area);
  ASSERT_EQ(polyline.reverseCurve(), Acad::eOk);
  double after = 0;
  polyline.getArea(after);
  EXPECT_NEAR(after, area, 1e-9);
  for (unsigned i = 0; i < 2; ++i) {
    double bulge = 0;
    polyline.getBulgeAt(i, bulge);
    EXPECT_EQ(bulge, i == 0 ? -1.0 : 0.0);
  }
}

TEST(CurveEdits, MirrorsAndScalesWhereTheClassAllowsIt) {
  const auto mirror = AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d(), AcGeVector3d(1, 0, 0)));
  const auto twice = AcGeMatrix3d::scaling(2);
  AcDbArc arc({10, 0, 0}, {0, 0, 1}, 5, 0, kPi / 2);
  ASSERT_EQ(arc.transformBy(mirror), Acad::eOk);
  ASSERT_EQ(arc.transformBy(twice), Acad::eOk);
  EXPECT_DOUBLE_EQ(arc.radius(), 10);
  expectNear(startOf(arc), {-20, 10, 0});
  expectNear(endOf(arc), {-30, 0, 0});
  AcDbCircle circle({1, 2, 3}, {0, 0, 1}, 4);
  ASSERT_EQ(circle.transformBy(mirror), Acad::eOk);
  expectNear(circle.center(), {-1, 2, 3});
}

TEST(CurveEdits, AMatrixThatIsNotFiniteOrNotEvenChangesNothing) {
  AcGeMatrix3d bad;
  bad.entry[0][3] = kNaN;
  AcGeMatrix3d uneven;
  uneven.entry[1][1] = 3;
  AcGeMatrix3d flat;
  flat.entry[0][0] = flat.entry[1][1] = flat.entry[2][2] = 0;
  AcDbArc arc({1, 0, 0}, {0, 0, 1}, 5, 0, kPi / 2);
  AcDbPolyline polyline;
  fillPolyline(polyline);
  AcDbLine line({0, 0, 0}, {1, 0, 0});
  AcDbPoint point({1, 1, 1});
  for (AcDbEntity* entity : std::initializer_list<AcDbEntity*>{&arc, &polyline, &line, &point})
    EXPECT_EQ(entity->transformBy(bad), Acad::eInvalidInput);
  for (AcDbEntity* entity : std::initializer_list<AcDbEntity*>{&arc, &polyline}) {
    EXPECT_EQ(entity->transformBy(uneven), Acad::eCannotScaleNonUniformly);
    EXPECT_EQ(entity->transformBy(flat), Acad::eCannotScaleNonUniformly);
  }
  EXPECT_EQ(arc.radius(), 5);
  expectNear(endOf(polyline), {20, 0, 0});
  expectNear(line.endPoint(), {1, 0, 0});
}

TEST(CurveEdits, APolylineExplodesIntoLinesAndArcs) {
  AcDbPolyline polyline;
  fillPolyline(polyline);
  polyline.setBulgeAt(1, -1);
  polyline.setColorIndex(2);
  std::vector<AcDbEntity*> parts;
  ASSERT_EQ(polyline.explode(parts), Acad::eOk);
  ASSERT_EQ(parts.size(), 2u);
  ASSERT_TRUE(AcDbLine::cast(parts[0]));
  const auto* arc = AcDbArc::cast(parts[1]);
  ASSERT_TRUE(arc);
  expectNear(arc->center(), {15, 0, 0});
  expectNear(startOf(*arc), {20, 0, 0});
  expectNear(endOf(*arc), {10, 0, 0});
  for (AcDbEntity* part : parts) {
    EXPECT_EQ(part->colorIndex(), 2);
    delete part;
  }
  parts.clear();
  EXPECT_EQ(AcDbLine().explode(parts), Acad::eCannotExplodeEntity);
  EXPECT_EQ(AcDbPolyline().explode(parts), Acad::eCannotExplodeEntity);
  EXPECT_TRUE(parts.empty());
}

TEST_F(Curves, AreChangedOnlyWhileOpenForWrite) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForRead);
  EXPECT_EQ(line->moveEndTo({0, 20, 0}), Acad::eNotOpenForWrite);
  EXPECT_EQ(line->reverseCurve(), Acad::eNotOpenForWrite);
  EXPECT_EQ(line->transformBy(AcGeMatrix3d::scaling(2)), Acad::eNotOpenForWrite);
  expectNear(line->endPoint(), {0, 10, 0});
}

TEST(DegenerateCurves, AnswerEveryQuestionWithoutLoopOrCrash) {
  std::vector<std::unique_ptr<AcDbCurve>> curves;
  curves.push_back(std::make_unique<AcDbLine>(AcGePoint3d(1, 1, 0), AcGePoint3d(1, 1, 0)));
  curves.push_back(std::make_unique<AcDbLine>(AcGePoint3d(kNaN, 1, 0), AcGePoint3d(1, INFINITY, 0)));
  curves.push_back(std::make_unique<AcDbLine>(AcGePoint3d(1e200, 1, 0), AcGePoint3d(-1e200, 1, 0)));
  curves.push_back(std::make_unique<AcDbCircle>(AcGePoint3d(), AcGeVector3d(0, 0, 1), 0));
  curves.push_back(std::make_unique<AcDbCircle>(AcGePoint3d(), AcGeVector3d(0, 0, 0), 1e-200));
  curves.push_back(std::make_unique<AcDbCircle>(AcGePoint3d(kNaN, 0, 0), AcGeVector3d(kNaN, 0, 1), kNaN));
  curves.push_back(std::make_unique<AcDbArc>(AcGePoint3d(), AcGeVector3d(0, 0, 1), -5, 1, 2));
  curves.push_back(std::make_unique<AcDbArc>(AcGePoint3d(), AcGeVector3d(0, 0, 1), 5, kNaN, 1e300));
  curves.push_back(std::make_unique<AcDbArc>(AcGePoint3d(), AcGeVector3d(0, 0, 1), 5, 1, 1));
  curves.push_back(std::make_unique<AcDbPolyline>());
  auto lone = std::make_unique<AcDbPolyline>();
  lone->addVertexAt(0, AcGePoint2d(1, 1), 1e300);
  curves.push_back(std::move(lone));
  auto coincident = std::make_unique<AcDbPolyline>();
  for (const double bulge : {1e300, -1e300, 0.0, 1e-300})
    coincident->addVertexAt(coincident->numVerts(), AcGePoint2d(1, 1), bulge);
  coincident->setClosed(true);
  curves.push_back(std::move(coincident));
  auto wild = std::make_unique<AcDbPolyline>();
  wild->addVertexAt(0, AcGePoint2d(0, 0), 1e300);
  wild->addVertexAt(1, AcGePoint2d(10, 0), -1e17);
  wild->addVertexAt(2, AcGePoint2d(20, 0));
  curves.push_back(std::move(wild));
  for (const auto& curve : curves) {
    AcGePoint3d point;
    AcGeVector3d along;
    double number = 0;
    std::vector<AcDbCurve*> parts;
    std::vector<AcDbEntity*> pieces;
    curve->isClosed();
    curve->getStartPoint(point);
    curve->getEndPoint(point);
    for (const double at : {0.0, 0.5, -1.0, 1e300, kNaN}) {
      curve->getPointAtParam(at, point);
      curve->getPointAtDist(at, point);
      curve->getDistAtParam(at, number);
      curve->getParamAtDist(at, number);
      curve->getFirstDeriv(at, along);
      curve->getSplitCurves(std::vector<double>{at, 0.25}, parts);
    }
    for (const AcGePoint3d& at : {AcGePoint3d(), AcGePoint3d(1, 1, 0), AcGePoint3d(kNaN, 0, 1e300)}) {
      curve->getClosestPointTo(at, point, true);
      curve->getParamAtPoint(at, number);
      curve->getDistAtPoint(at, number);
      curve->getSplitCurves(Points{at}, parts);
    }
    curve->getArea(number);
    curve->explode(pieces);
    for (const auto& other : curves) {
      Points points;
      curve->intersectWith(other.get(), AcDb::kExtendBoth, points);
      for (const AcGePoint3d& p : points) EXPECT_TRUE(std::isfinite(p.x) && std::isfinite(p.y));
    }
    const std::unique_ptr<AcRxObject> copy(curve->clone());
    EXPECT_TRUE(copy);
    curve->moveStartTo({1, 1, 0});
    curve->moveEndTo({kNaN, 1, 0});
    curve->reverseCurve();
    curve->transformBy(AcGeMatrix3d::scaling(1e300));
    for (AcDbCurve* part : parts) delete part;
    for (AcDbEntity* piece : pieces) delete piece;
  }
}

TEST(PolylineVertices, SegmentsAreToldByTheirKind) {
  AcDbPolyline polyline;
  fillPolyline(polyline);
  polyline.addVertexAt(3, AcGePoint2d(20, 0));
  EXPECT_EQ(polyline.segType(0), AcDbPolyline::kLine);
  EXPECT_EQ(polyline.segType(1), AcDbPolyline::kArc);
  EXPECT_EQ(polyline.segType(2), AcDbPolyline::kCoincident);
  EXPECT_EQ(polyline.segType(3), AcDbPolyline::kPoint);
  EXPECT_EQ(polyline.segType(4), AcDbPolyline::kEmpty);
  EXPECT_TRUE(polyline.hasBulges());
  EXPECT_FALSE(polyline.hasWidth());
  EXPECT_EQ(polyline.removeVertexAt(9), Acad::eOutOfRange);
  EXPECT_EQ(polyline.setBulgeAt(9, 1), Acad::eOutOfRange);
  EXPECT_EQ(polyline.setBulgeAt(0, kNaN), Acad::eInvalidInput);
  EXPECT_EQ(polyline.removeVertexAt(3), Acad::eOk);
  EXPECT_EQ(polyline.numVerts(), 3u);
}

TEST(PolylineVertices, WidthsOfTheirOwnReplaceTheCommonOne) {
  AcDbPolyline polyline;
  fillPolyline(polyline);
  polyline.setConstantWidth(2);
  ASSERT_EQ(polyline.setWidthsAt(0, 1, 3), Acad::eOk);
  double start = 0;
  double end = 0;
  polyline.getWidthsAt(1, start, end);
  EXPECT_EQ(start, 2);
  polyline.getWidthsAt(0, start, end);
  EXPECT_EQ(end, 3);
  EXPECT_EQ(polyline.setWidthsAt(7, 1, 1), Acad::eOutOfRange);
  EXPECT_EQ(polyline.setWidthsAt(0, kNaN, 1), Acad::eInvalidInput);
}
