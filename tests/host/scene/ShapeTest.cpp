#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using Kind = scene::Primitive::Kind;

namespace {

constexpr double kPi = std::numbers::pi;

std::string block(const std::string& entities) {
  return "0 BLOCK|8 0|2 b|70 0|10 0|20 0|3 b|" + entities + "|0 ENDBLK|8 0";
}

void expectBox(const ge::Box2d& box, double minX, double minY, double maxX, double maxY,
               double within = 1e-3) {
  EXPECT_NEAR(minX, box.minX, within);
  EXPECT_NEAR(minY, box.minY, within);
  EXPECT_NEAR(maxX, box.maxX, within);
  EXPECT_NEAR(maxY, box.maxY, within);
}

} // namespace

TEST(Shape, ACircleKeepsWithinAFewMillionthsOfItsRadius) {
  const Picture p("0 CIRCLE|8 0|10 5|20 6|40 1000");
  const auto parts = scene::Flatten(p.scene.path(p.only(Kind::stroke)));
  for (const auto& point : parts.at(0)) EXPECT_NEAR(1000, std::hypot(point.x - 5, point.y - 6), 5e-3);
}

TEST(Shape, AnArcRunsAnticlockwiseFromItsStart) {
  const Picture p("0 ARC|8 0|10 0|20 0|40 10|50 350|51 80");
  const auto points = p.points(p.only(Kind::stroke));
  EXPECT_NEAR(10 * std::cos(-kPi / 18), points.front().x, 1e-9);
  EXPECT_NEAR(10 * std::sin(80 * kPi / 180), points.back().y, 1e-9);
  EXPECT_NEAR(10 * kPi / 2, p.length(p.only(Kind::stroke)), 1e-2);
}

TEST(Shape, AnEllipseHasBothItsAxes) {
  expectBox(Picture("0 ELLIPSE|8 0|10 0|20 0|11 0|21 8|40 0.5|41 0|42 6.283185307179586").scene.box, -4, -8,
            4, 8, 0.5);
}

TEST(Shape, ACubicSplineIsExact) {
  // One Bezier piece as a spline.
  const Picture p("0 SPLINE|8 0|70 8|71 3|72 8|73 4|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1|"
                  "10 0|20 0|10 1|20 3|10 4|20 3|10 5|20 0");
  const auto points = p.points(p.only(Kind::stroke));
  ASSERT_EQ(4u, points.size());
  EXPECT_NEAR(1, points[1].x, 1e-12);
  EXPECT_NEAR(3, points[1].y, 1e-12);
  EXPECT_NEAR(4, points[2].x, 1e-12);
}

TEST(Shape, ARationalSplineIsACircle) {
  const Picture p(
      "0 SPLINE|8 0|70 12|71 2|72 6|73 3|40 0|40 0|40 0|40 1|40 1|40 1|41 1|41 0.7071067811865476|41 1|"
      "10 1|20 0|10 1|20 1|10 0|20 1");
  const auto parts = scene::Flatten(p.scene.path(p.only(Kind::stroke)));
  for (const auto& point : parts.at(0)) EXPECT_NEAR(1, std::hypot(point.x, point.y), 1e-4);
}

TEST(Shape, ABulgeOfOneIsHalfACircle) {
  const Picture p("0 LWPOLYLINE|8 0|90 2|70 0|10 0|20 0|42 1|10 10|20 0");
  EXPECT_NEAR(5 * kPi, p.length(p.only(Kind::stroke)), 1e-2);
  EXPECT_LT(p.scene.box.minY, -4.9);
}

TEST(Shape, APolylinesWidthIsInDrawingUnits) {
  const auto stroke = Picture("0 LWPOLYLINE|8 0|90 2|70 0|43 3|10 0|20 0|10 10|20 0").only(Kind::stroke);
  EXPECT_DOUBLE_EQ(3, stroke.width);
}

TEST(Shape, ATaperedSegmentIsAFill) {
  const Picture p("0 LWPOLYLINE|8 0|90 2|70 0|10 0|20 0|40 0|41 4|10 10|20 0|40 0|41 0");
  expectBox(p.scene.box, 0, -2, 10, 2);
  EXPECT_EQ(1u, p.all(Kind::fill).size());
}

TEST(Shape, WithoutFillModeWidthsAreOutlines) {
  const Picture p(Parts{.entities = "0 LWPOLYLINE|8 0|90 2|70 0|43 3|10 0|20 0|10 10|20 0|"
                                    "0 SOLID|8 0|10 0|20 0|11 1|21 0|12 0|22 1|13 1|23 1",
                        .header = "9 $FILLMODE|70 0"});
  EXPECT_TRUE(p.all(Kind::fill).empty());
  EXPECT_EQ(2u, p.all(Kind::stroke).size());
}

TEST(Shape, AnOldPolylineIsDrawnByItsVertices) {
  const Picture p(
      "0 POLYLINE|8 0|66 1|70 1|40 0|0 VERTEX|8 0|10 0|20 0|0 VERTEX|8 0|10 4|20 0|0 VERTEX|8 0|10 4|20 3|"
      "0 SEQEND|8 0");
  EXPECT_NEAR(12, p.length(p.only(Kind::stroke)), 1e-9);
}

TEST(Shape, ControlPointsOfASmoothedPolylineAreNotDrawn) {
  const Picture p("0 POLYLINE|8 0|66 1|70 4|0 VERTEX|8 0|10 0|20 0|70 16|0 VERTEX|8 0|10 0|20 0|70 8|"
                  "0 VERTEX|8 0|10 4|20 0|70 8|0 VERTEX|8 0|10 4|20 99|70 16|0 SEQEND|8 0");
  EXPECT_NEAR(4, p.length(p.only(Kind::stroke)), 1e-9);
}

TEST(Shape, AMeshIsItsRowsAndColumns) {
  std::string text = "0 POLYLINE|8 0|66 1|70 16|71 2|72 3";
  for (int row = 0; row < 2; ++row)
    for (int column = 0; column < 3; ++column)
      text += "|0 VERTEX|8 0|10 " + std::to_string(column) + "|20 " + std::to_string(row) + "|70 64";
  const Picture p(text + "|0 SEQEND|8 0");
  EXPECT_EQ(5u, p.all(Kind::stroke).size());
}

TEST(Shape, ASolidsLastCornersCrossOver) {
  const Picture p("0 SOLID|8 0|10 0|20 0|11 4|21 0|12 0|22 4|13 4|23 4");
  const auto points = p.points(p.only(Kind::fill));
  EXPECT_DOUBLE_EQ(4, points[2].x);
  EXPECT_DOUBLE_EQ(4, points[2].y);
  EXPECT_DOUBLE_EQ(0, points[3].x);
}

TEST(Shape, HiddenEdgesOfAFaceAreLeftOut) {
  EXPECT_EQ(4u, Picture("0 3DFACE|8 0|10 0|20 0|11 4|21 0|12 4|22 4|13 0|23 4").all(Kind::stroke).size());
  EXPECT_EQ(2u,
            Picture("0 3DFACE|8 0|10 0|20 0|11 4|21 0|12 4|22 4|13 0|23 4|70 5").all(Kind::stroke).size());
}

TEST(Shape, RaysAreUnboundedAndOutsideOfTheBox) {
  const Picture p("0 RAY|8 0|10 0|20 0|11 1|21 0|0 LINE|8 0|10 5|20 5|11 6|21 6");
  EXPECT_EQ(1u, p.all(Kind::ray).size());
  EXPECT_TRUE(p.scene.groups.at(0).unbounded);
  expectBox(p.scene.box, 5, 5, 6, 6);
}

TEST(Shape, AWipeoutIsOfTheBackground) {
  const Picture p(
      "0 WIPEOUT|8 0|100 AcDbWipeout|10 10|20 10|11 4|21 0|12 0|22 4|13 1|23 1|71 1|91 2|14 -0.5|24 -0.5|"
      "14 0.5|24 0.5");
  EXPECT_EQ(scene::Color::Kind::background, p.only(Kind::fill).color.kind);
  expectBox(p.scene.box, 10, 10, 14, 14);
}

TEST(Shape, AnExtrusionDownwardsIsSeenMirrored) {
  expectBox(Picture("0 CIRCLE|8 0|10 5|20 0|40 1|210 0|220 0|230 -1").scene.box, -6, -1, -4, 1, 0.1);
}

TEST(Shape, AnUnevenInsertionMakesAnEllipseOfACircle) {
  const Picture p(
      {.entities = "0 INSERT|8 0|2 b|10 0|20 0|41 3|42 1", .blocks = block("0 CIRCLE|8 0|10 0|20 0|40 1")});
  expectBox(p.scene.box, -3, -1, 3, 1, 0.1);
}

TEST(Shape, AMirroredInsertionTurnsItsBlockOver) {
  const Picture p(Parts{.entities = "0 INSERT|8 0|2 b|10 100|20 0|41 -1|42 1|50 90",
                        .blocks = block("0 LINE|8 0|10 1|20 0|11 3|21 1")});
  const auto points = p.points(p.only(Kind::stroke));
  EXPECT_NEAR(100, points[0].x, 1e-9);
  EXPECT_NEAR(-1, points[0].y, 1e-9);
  EXPECT_NEAR(99, points[1].x, 1e-9);
  EXPECT_NEAR(-3, points[1].y, 1e-9);
}

TEST(Shape, RowsAndColumnsTurnWithTheInsertion) {
  const Picture p(Parts{.entities = "0 INSERT|8 0|2 b|10 0|20 0|50 90|70 3|71 2|44 10|45 5",
                        .blocks = block("0 POINT|8 0|10 0|20 0")});
  EXPECT_EQ(6u, p.all(Kind::point).size());
  expectBox(p.scene.box, -5, 0, 0, 20);
}

TEST(Shape, AnInsertionStandsOnItsBlocksBasePoint) {
  const Picture p(Parts{.entities = "0 INSERT|8 0|2 b|10 10|20 10|41 2|42 2",
                        .blocks = "0 BLOCK|8 0|2 b|70 0|10 1|20 1|3 b|0 POINT|8 0|10 2|20 1|0 ENDBLK|8 0"});
  expectBox(p.scene.box, 12, 10, 12, 10);
}

TEST(Shape, ADimensionIsItsBlock) {
  const Picture p(Parts{.entities = "0 DIMENSION|8 0|2 b|10 0|20 0|11 0|21 0|70 0",
                        .blocks = block("0 LINE|8 0|10 1|20 2|11 3|21 4")});
  expectBox(p.scene.box, 1, 2, 3, 4);
  EXPECT_TRUE(p.scene.leftOut.empty());
}

TEST(Shape, ALinearDimensionWithoutABlockIsDrawnFromItsPoints) {
  const Picture p("0 DIMENSION|8 0|2 none|10 100|20 20|13 0|23 0|14 100|24 0|70 1");
  EXPECT_EQ(3u, p.all(Kind::stroke).size());
  EXPECT_EQ(2u, p.all(Kind::fill).size());
  EXPECT_EQ(L"100", p.text().text);
}

TEST(Shape, ALeaderHasAnArrowAtItsFirstPoint) {
  const Picture p("0 LEADER|8 0|3 Standard|71 1|72 0|76 2|10 0|20 0|10 10|20 10");
  const auto arrow = p.points(p.only(Kind::fill));
  EXPECT_DOUBLE_EQ(0, arrow[0].x);
  EXPECT_GT(arrow[1].x, 0);
}

// The line leaves the block's plane, which shows only where the block is tilted.
TEST(Shape, OfABlockIsDrawnFlatTiltedAndScaledInOnePicture) {
  const Picture picture(
      Parts{.entities =
                "0 INSERT|8 0|2 B|10 0|20 0|0 INSERT|8 0|2 B|10 0|20 0|30 7|210 1|220 0|230 0|"
                "0 INSERT|8 0|2 B|10 100|20 0|41 2|42 2|43 2|0 INSERT|8 0|2 B|10 50|20 0|210 0|220 0|230 -1",
            .blocks = "0 BLOCK|2 B|10 0|20 0|0 LINE|8 0|10 0|20 0|30 0|11 3|21 4|31 5|0 ENDBLK"});
  const auto& groups = picture.scene.groups;
  ASSERT_EQ(4u, groups.size());
  const auto expectBox = [&](std::size_t i, double minX, double minY, double maxX, double maxY) {
    EXPECT_NEAR(minX, groups[i].box.minX, 1e-9) << i;
    EXPECT_NEAR(minY, groups[i].box.minY, 1e-9) << i;
    EXPECT_NEAR(maxX, groups[i].box.maxX, 1e-9) << i;
    EXPECT_NEAR(maxY, groups[i].box.maxY, 1e-9) << i;
  };
  expectBox(0, 0, 0, 3, 4);
  expectBox(1, 7, 0, 12, 3); // the block's x runs along y, its height along x
  expectBox(2, 100, 0, 106, 8);
  expectBox(3, -53, 0, -50, 4); // seen from behind
}
