#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using Kind = scene::Primitive::Kind;

namespace {

constexpr double kPi = std::numbers::pi;

std::string square(double from, double to) {
  const std::string a = std::to_string(from);
  const std::string b = std::to_string(to);
  return "92 2|72 0|73 1|93 4|10 " + a + "|20 " + a + "|10 " + b + "|20 " + a + "|10 " + b + "|20 " + b +
         "|10 " + a + "|20 " + b + "|97 0";
}

std::string hatch(int loops, const std::string& boundary, int style = 0, const std::string& pattern = {}) {
  const std::string solid = pattern.empty() ? "1" : "0";
  return "0 HATCH|8 0|100 AcDbEntity|100 AcDbHatch|10 0|20 0|30 0|210 0|220 0|230 1|2 X|70 " + solid +
         "|71 0|91 " + std::to_string(loops) + "|" + boundary + "|75 " + std::to_string(style) + "|76 1" +
         (pattern.empty() ? "" : "|52 0|41 1|77 0|" + pattern) + "|98 0";
}

// By even and odd, for loops that lie within one another.
double areaOf(const Picture& p) {
  double sum = 0;
  int depth = 0;
  for (const auto& loop : scene::Flatten(p.scene.path(p.only(Kind::fill)))) {
    double twice = 0;
    for (std::size_t i = 0; i < loop.size(); ++i) {
      const auto& a = loop[i];
      const auto& b = loop[(i + 1) % loop.size()];
      twice += a.x * b.y - b.x * a.y;
    }
    sum += (depth++ % 2 == 0 ? 1 : -1) * std::fabs(twice) / 2;
  }
  return sum;
}

std::string edges(int count, const std::string& list) {
  return "92 1|93 " + std::to_string(count) + "|" + list + "|97 0";
}

} // namespace

TEST(Hatch, AnIslandIsLeftOut) {
  EXPECT_NEAR(100 - 16, areaOf(Picture(hatch(2, square(0, 10) + "|" + square(3, 7)))), 1e-9);
}

TEST(Hatch, TheOuterStyleLeavesOutWhatLiesInIslands) {
  const std::string loops = square(0, 10) + "|" + square(2, 8) + "|" + square(4, 6);
  EXPECT_NEAR(100 - 36 + 4, areaOf(Picture(hatch(3, loops, 0))), 1e-9);
  EXPECT_NEAR(100 - 36, areaOf(Picture(hatch(3, loops, 1))), 1e-9);
  EXPECT_NEAR(100, areaOf(Picture(hatch(3, loops, 2))), 1e-9);
}

TEST(Hatch, EdgesOfEveryKindCloseALoop) {
  // A half circle anticlockwise over a line.
  EXPECT_NEAR(kPi * 50,
              areaOf(Picture(hatch(1, edges(2, "72 1|10 -10|20 0|11 10|21 0|"
                                               "72 2|10 0|20 0|40 10|50 0|51 180|73 1")))),
              0.3);
  // The same clockwise, whose angles count the other way round.
  EXPECT_NEAR(kPi * 50,
              areaOf(Picture(hatch(1, edges(2, "72 1|10 10|20 0|11 -10|21 0|"
                                               "72 2|10 0|20 0|40 10|50 180|51 360|73 0")))),
              0.3);
  EXPECT_NEAR(kPi * 50,
              areaOf(Picture(hatch(1, edges(1, "72 3|10 0|20 0|11 10|21 0|40 0.5|50 0|51 360|73 1")))), 0.4);
  EXPECT_NEAR(
      50,
      areaOf(Picture(hatch(1, edges(2, "72 1|10 0|20 0|11 10|21 0|72 4|94 1|73 0|74 0|95 5|96 3|40 0|40 0|"
                                       "40 1|40 2|40 2|10 10|20 0|10 5|20 10|10 0|20 0|97 0")))),
      1e-6);
}

TEST(Hatch, EdgesStoredBackwardsAreTurnedRound) {
  EXPECT_NEAR(100,
              areaOf(Picture(hatch(1, edges(4, "72 1|10 10|20 0|11 0|21 0|72 1|10 10|20 0|11 10|21 10|"
                                               "72 1|10 0|20 10|11 10|21 10|72 1|10 0|20 10|11 0|21 0")))),
              1e-9);
}

TEST(Hatch, LinesFillWhatIsInside) {
  // Lines one apart, from 0.5 on.
  const Picture p(hatch(2, square(0, 10) + "|" + square(4, 6), 0, "78 1|53 0|43 0|44 0.5|45 0|46 1|79 0"));
  EXPECT_NEAR(8 * 10 + 2 * 8, p.length(p.only(Kind::stroke)), 1e-9);
}

TEST(Hatch, DashesOfALineBeginAtItsBase) {
  const Picture p(hatch(1, square(0, 10), 0, "78 1|53 0|43 0|44 0.5|45 0|46 10|79 2|49 3|49 -1"));
  const auto points = p.points(p.only(Kind::stroke));
  ASSERT_EQ(6u, points.size()); // 0-3, 4-7, 8-10
  EXPECT_NEAR(3, points[1].x, 1e-9);
  EXPECT_NEAR(4, points[2].x, 1e-9);
  EXPECT_NEAR(10, points[5].x, 1e-9);
}

TEST(Hatch, LinesAtAnAngleCoverTheSameArea) {
  const Picture p(
      hatch(1, square(0, 10), 0, "78 1|53 45|43 0|44 0|45 -0.07071067811865475|46 0.07071067811865475|79 0"));
  EXPECT_NEAR(100, p.length(p.only(Kind::stroke)) * 0.1, 0.2);
}

TEST(Hatch, APatternTooDenseIsToldAndOnlyOutlined) {
  const Picture p(hatch(1, square(0, 10), 0, "78 1|53 0|43 0|44 0|45 0|46 0.0000001|79 0"));
  EXPECT_NEAR(40, p.length(p.only(Kind::stroke)), 1e-9);
  EXPECT_TRUE(p.toldOf(L"图案太密"));
}

TEST(Hatch, AGradientIsItsMiddleColour) {
  const Picture p("0 HATCH|8 0|100 AcDbEntity|100 AcDbHatch|10 0|20 0|30 0|2 SOLID|70 1|91 1|" +
                  square(0, 10) + "|75 0|450 1|451 0|453 2|463 0|421 16711680|463 1|421 255|470 LINEAR");
  EXPECT_EQ(scene::Color::fromTrueColor(0x7F007F), p.only(Kind::fill).color);
}
