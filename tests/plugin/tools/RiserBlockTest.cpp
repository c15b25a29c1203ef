#include "plugin/tools/RiserBlock.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbPoint.h"
#include "tests/support/EditorFixture.h"

namespace {

class RiserBlock : public EditorFixture {
 protected:
  // Radii of the circles in their order, and -1 for a point.
  std::vector<double> contents(const AcDbObjectId& id) {
    std::vector<double> radii;
    AcDbObjectPointer<AcDbBlockTableRecord> block(id, AcDb::kForRead);
    for (const auto& entity : block->entities()) {
      const auto* circle = AcDbCircle::cast(entity.object());
      if (circle && circle->center() == AcGePoint3d())
        radii.push_back(circle->radius());
      else if (const auto* point = AcDbPoint::cast(entity.object());
               point && point->position() == AcGePoint3d())
        radii.push_back(-1);
    }
    return radii;
  }
};

} // namespace

TEST_F(RiserBlock, OfTheSingleCircleIsOneCircleAndAPoint) {
  const auto id = ZP::GetRiserBlockID(L"KOR_PMT_KXG_1.2");
  ASSERT_FALSE(id.isNull());
  EXPECT_EQ((std::vector<double>{1.0, -1}), contents(id));
}

TEST_F(RiserBlock, OfAnyOtherNameIsFiveCirclesAndAPoint) {
  const std::vector<double> rings{1.0, 0.8, 0.6, 0.4, 0.2, -1};
  EXPECT_EQ(rings, contents(ZP::GetRiserBlockID(L"KOR_PMT_SXG_1.2")));
  EXPECT_EQ(rings, contents(ZP::GetRiserBlockID(L"立管")));
}

TEST_F(RiserBlock, IsMadeOnce) {
  const auto id = ZP::GetRiserBlockID(L"KOR_PMT_KXG_1.2");
  EXPECT_EQ(id, ZP::GetRiserBlockID(L"KOR_PMT_KXG_1.2"));
  EXPECT_EQ(2u, contents(id).size());
}

TEST_F(RiserBlock, OfANameThatTheHostRefusesIsNullAndTheStatusIsShown) {
  EXPECT_TRUE(ZP::GetRiserBlockID(L"a/b|c").isNull());
  EXPECT_TRUE(ZP::GetRiserBlockID(L"").isNull());
  EXPECT_EQ(2u, frontEnd.boxes.size());
}

TEST_F(RiserBlock, WithoutADrawingIsNull) {
  acDocManagerPtr()->closeAll();
  EXPECT_TRUE(ZP::GetRiserBlockID(L"立管").isNull());
}
