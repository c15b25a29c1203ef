// What matrices promise: order of products, inverses whatever the scale, and the usual transformations.
#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/AcGePlane.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

constexpr double kPi = std::numbers::pi;

TEST(AcGeMatrix3d, StartsAsTheIdentity) {
  EXPECT_EQ(AcGeMatrix3d(), AcGeMatrix3d::kIdentity);
  EXPECT_EQ(AcGeMatrix3d::kIdentity * AcGePoint3d(1, 2, 3), AcGePoint3d(1, 2, 3));
}

TEST(AcGeMatrix3d, TheRightFactorActsFirst) {
  const AcGeMatrix3d move = AcGeMatrix3d::translation(AcGeVector3d(10, 0, 0));
  const AcGeMatrix3d turn = AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis);
  EXPECT_EQ(turn * move * AcGePoint3d(1, 0, 0), AcGePoint3d(0, 11, 0));
  EXPECT_EQ(move * turn * AcGePoint3d(1, 0, 0), AcGePoint3d(10, 1, 0));
  AcGeMatrix3d m = move;
  EXPECT_EQ(m.preMultBy(turn), turn * move);
  m = move;
  EXPECT_EQ(m.postMultBy(turn), move * turn);
  m = move;
  EXPECT_EQ(m *= m, AcGeMatrix3d::translation(AcGeVector3d(20, 0, 0)));
}

TEST(AcGeMatrix3d, VectorsAreNotTranslated) {
  const AcGeMatrix3d move = AcGeMatrix3d::translation(AcGeVector3d(10, 20, 30));
  EXPECT_EQ(move * AcGeVector3d(1, 2, 3), AcGeVector3d(1, 2, 3));
  EXPECT_EQ(AcGePoint3d(1, 2, 3).transformBy(move), AcGePoint3d(11, 22, 33));
}

TEST(AcGeMatrix3d, RotationLeavesItsCentreAndAxisAlone) {
  const AcGePoint3d center(4, 5, 6);
  const AcGeVector3d axis(1, 2, -2);
  const AcGeMatrix3d m = AcGeMatrix3d::rotation(1.25, axis, center);
  EXPECT_TRUE((m * center).isEqualTo(center));
  EXPECT_TRUE((m * (center + axis)).isEqualTo(center + axis));
  EXPECT_NEAR(m.det(), 1.0, 1e-14);
  EXPECT_EQ(AcGeMatrix3d::rotation(1.0, AcGeVector3d::kIdentity), AcGeMatrix3d::kIdentity);
}

TEST(AcGeMatrix3d, ScalingKeepsItsCentre) {
  const AcGeMatrix3d m = AcGeMatrix3d::scaling(3.0, AcGePoint3d(1, 1, 1));
  EXPECT_EQ(m * AcGePoint3d(2, 1, 0), AcGePoint3d(4, 1, -2));
  EXPECT_DOUBLE_EQ(m.det(), 27.0);
  EXPECT_DOUBLE_EQ(m.scale(), 3.0);
}

TEST(AcGeMatrix3d, MirroringReversesTheSideAndTheHand) {
  const AcGePlane plane(AcGePoint3d(2, 0, 0), AcGeVector3d::kXAxis);
  const AcGeMatrix3d m = AcGeMatrix3d::mirroring(plane);
  EXPECT_EQ(m * AcGePoint3d(5, 1, 1), AcGePoint3d(-1, 1, 1));
  EXPECT_NEAR(m.det(), -1.0, 1e-15);
  EXPECT_EQ(m * m, AcGeMatrix3d::kIdentity);
  EXPECT_EQ(AcGeMatrix3d::mirroring(AcGePoint3d(1, 1, 1)) * AcGePoint3d(0, 3, 1), AcGePoint3d(2, -1, 1));
}

TEST(AcGeMatrix3d, TheInverseUndoesRandomTransformationsAtAnyScale) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> unit(-1.0, 1.0);
  for (const double size : {1e-120, 1e-9, 1.0, 1e9, 1e120}) {
    for (int i = 0; i < 200; ++i) {
      AcGeMatrix3d m;
      for (auto& row : m.entry) {
        for (double& value : row) value = unit(random);
      }
      for (int column = 0; column < 4; ++column) m.entry[3][column] = column == 3 ? 1.0 : 0.0;
      if (std::fabs(m.det()) < 0.05) continue;
      m = m * AcGeMatrix3d::scaling(size);
      AcGeMatrix3d back;
      ASSERT_TRUE(m.inverse(back));
      EXPECT_TRUE((m * back).isEqualTo(AcGeMatrix3d::kIdentity)) << size;
      EXPECT_EQ(m.inverse(), back);
    }
  }
}

TEST(AcGeMatrix3d, ASingularMatrixHasNoInverseAndLeavesTheArgumentAlone) {
  AcGeMatrix3d flat;
  flat(2, 2) = 0.0;
  EXPECT_TRUE(flat.isSingular());
  AcGeMatrix3d untouched = AcGeMatrix3d::scaling(5.0);
  EXPECT_FALSE(flat.inverse(untouched));
  EXPECT_EQ(untouched, AcGeMatrix3d::scaling(5.0));
  EXPECT_EQ(flat.inverse(), flat);
  AcGeMatrix3d bad;
  bad(0, 0) = std::nan("");
  EXPECT_TRUE(bad.isSingular());
}

TEST(AcGeMatrix3d, SmallScaleIsNotSingular) {
  const AcGeMatrix3d small = AcGeMatrix3d::scaling(1e-8);
  AcGeMatrix3d back;
  ASSERT_TRUE(small.inverse(back));
  EXPECT_NEAR(back(0, 0), 1e8, 1e-6);
}

TEST(AcGeMatrix3d, CoordinateSystemIsTheColumns) {
  AcGeMatrix3d m;
  m.setCoordSystem(AcGePoint3d(1, 2, 3), AcGeVector3d::kYAxis, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis);
  EXPECT_EQ(m * AcGePoint3d(1, 0, 0), AcGePoint3d(1, 3, 3));
  AcGePoint3d origin;
  AcGeVector3d x;
  AcGeVector3d y;
  AcGeVector3d z;
  m.getCoordSystem(origin, x, y, z);
  EXPECT_EQ(origin, AcGePoint3d(1, 2, 3));
  EXPECT_EQ(x, AcGeVector3d::kYAxis);
  EXPECT_EQ(y, AcGeVector3d::kZAxis);
  EXPECT_EQ(z, AcGeVector3d::kXAxis);
}

TEST(AcGeMatrix3d, AlignTakesOneSystemToTheOther) {
  const AcGePoint3d from(1, 1, 0);
  const AcGePoint3d to(10, 0, 5);
  const AcGeMatrix3d m = AcGeMatrix3d::alignCoordSys(from, AcGeVector3d::kYAxis, -AcGeVector3d::kXAxis,
                                                     AcGeVector3d::kZAxis, to, AcGeVector3d::kXAxis * 2.0,
                                                     AcGeVector3d::kYAxis * 2.0, AcGeVector3d::kZAxis * 2.0);
  EXPECT_EQ(m * from, to);
  EXPECT_EQ(m * (from + AcGeVector3d::kYAxis), to + AcGeVector3d::kXAxis * 2.0);
  const AcGeVector3d none;
  EXPECT_EQ(AcGeMatrix3d::alignCoordSys(from, none, none, none, to, AcGeVector3d::kXAxis,
                                        AcGeVector3d::kYAxis, AcGeVector3d::kZAxis),
            AcGeMatrix3d::kIdentity);
}

TEST(AcGeMatrix3d, UniformScaleIsJudgedRelativeToItsSize) {
  EXPECT_TRUE(
      (AcGeMatrix3d::rotation(0.3, AcGeVector3d(1, 2, 3)) * AcGeMatrix3d::scaling(1e7)).isUniScaledOrtho());
  EXPECT_TRUE(AcGeMatrix3d::mirroring(AcGePlane::kXYPlane).isUniScaledOrtho());
  AcGeMatrix3d stretched;
  stretched(1, 1) = 2.0;
  EXPECT_TRUE(stretched.isScaledOrtho());
  EXPECT_FALSE(stretched.isUniScaledOrtho());
  AcGeMatrix3d sheared;
  sheared(0, 1) = 0.1;
  EXPECT_FALSE(sheared.isScaledOrtho());
}

TEST(AcGeMatrix3d, TransposeOfARotationIsItsInverse) {
  const AcGeMatrix3d m = AcGeMatrix3d::rotation(0.7, AcGeVector3d(1, -2, 5));
  EXPECT_EQ(m * m.transpose(), AcGeMatrix3d::kIdentity);
}

TEST(AcGeMatrix3d, WorldAndPlaneCoordinatesCorrespond) {
  const AcGePlane plane(AcGePoint3d(1, 2, 3), AcGeVector3d(1, -4, 2));
  EXPECT_EQ(AcGeMatrix3d::worldToPlane(plane) * AcGeMatrix3d::planeToWorld(plane), AcGeMatrix3d::kIdentity);
  EXPECT_EQ(AcGeMatrix3d::worldToPlane(plane) * AcGePoint3d(1, 2, 3), AcGePoint3d::kOrigin);
  const AcGePoint2d flat(5, 6);
  EXPECT_EQ(AcGeMatrix3d::planeToWorld(plane) * AcGePoint3d(5, 6, 0), plane.evalPoint(flat));
}

} // namespace
